#include "FormWidget.h"

#include "FormGuard.h"

QString FormWidget::includeFile() const
{
    return name() + QStringLiteral(".h");
}

QIcon FormWidget::icon() const
{
    return QIcon(QStringLiteral(":/korva/designer/%1.png").arg(m_facts.icon));
}

QString FormWidget::domXml() const
{
    static constexpr auto form = R"(<ui language="c++" displayname="%1">
 <widget class="%2" name="%3">%4</widget>
 <customwidgets>
  <customwidget>
   <class>%2</class>
   <extends>QWidget</extends>
   <propertyspecifications>%5</propertyspecifications>
  </customwidget>
 </customwidgets>
</ui>)";
    return QString(form).arg(m_facts.title, m_facts.name, m_facts.icon, m_facts.properties, m_facts.hints);
}

QWidget* FormWidget::createWidget(QWidget* parent)
{
    QWidget* const widget = m_facts.make(parent);
    new FormGuard(*widget);
    return widget;
}
