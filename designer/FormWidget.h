#pragma once

#include <QtUiPlugin/QDesignerCustomWidgetInterface>

/// A widget as Designer offers it and as a form's loader makes it.
class FormWidget : public QDesignerCustomWidgetInterface
{
public:
    struct Facts
    {
        const char* name;
        const char* title; ///< in Designer's box of widgets
        const char* icon;
        const char* tip;
        const char* explanation;
        const char* properties; ///< what a new one begins with, as a form's XML
        const char* hints;      ///< how Designer edits its properties, as a form's XML; may be empty
        QWidget* (*make)(QWidget* parent);
    };
    explicit FormWidget(const Facts& facts) : m_facts(facts) {}

    [[nodiscard]] QString name() const override { return m_facts.name; }
    [[nodiscard]] QString group() const override { return QStringLiteral("Korva"); }
    [[nodiscard]] QString toolTip() const override { return m_facts.tip; }
    [[nodiscard]] QString whatsThis() const override { return m_facts.explanation; }
    [[nodiscard]] QString includeFile() const override;
    [[nodiscard]] QIcon icon() const override;
    [[nodiscard]] bool isContainer() const override { return false; }
    [[nodiscard]] QString domXml() const override;
    QWidget* createWidget(QWidget* parent) override;

private:
    const Facts& m_facts;
};
