#pragma once

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <QObject>

/// What Designer and QUiLoader find in the plugin.
class Plugin : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetCollectionInterface_iid)

public:
    explicit Plugin(QObject* parent = nullptr);
    ~Plugin() override;

    [[nodiscard]] QList<QDesignerCustomWidgetInterface*> customWidgets() const override
    {
        return m_widgets;
    }

private:
    QList<QDesignerCustomWidgetInterface*> m_widgets; ///< its own
};
