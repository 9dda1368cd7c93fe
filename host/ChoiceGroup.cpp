#include "ChoiceGroup.h"

#include "Accessible.h"
#include "Wording.h"

#include <UTIL_PushButton.h>
#include <UTIL_Skin.h>

#include <QGridLayout>

#include <utility>

namespace pad {

ChoiceGroup::ChoiceGroup(const QString& name, int columns, const QSize& cell, int gap, QWidget* parent)
    : QWidget(parent), m_grid(new QGridLayout(this)), m_columns(columns), m_cell(cell)
{
    installAccessibility();
    setAccessibleName(name);
    m_grid->setContentsMargins({});
    m_grid->setSpacing(gap);
    m_grid->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setMinimumHeight(cell.height()); // also without keys, so that what follows stays in its place
}

UTIL_PushButton* ChoiceGroup::makeKey(int)
{
    auto* key = new UTIL_PushButton(QString(), QString(), this);
    key->setFlags(0);
    key->setIconSize({UTIL_Skin::Size::iconWidth, UTIL_Skin::Size::iconHeight});
    return key;
}

void ChoiceGroup::add()
{
    const int index = int(m_keys.size());
    UTIL_PushButton* key = makeKey(index);
    key->setFixedSize(m_cell);
    key->setFocusPolicy(Qt::TabFocus);
    key->setCheckable(true);
    key->setAutoExclusive(true);
    m_grid->addWidget(key, index / m_columns, index % m_columns);
    if (!m_keys.empty()) {
        m_keys.back()->setFocusPolicy(Qt::TabFocus); // what Tab passes by has no order
        setTabOrder(m_keys.back(), key);
    }
    connect(key, &QPushButton::clicked, this, [this, index] { emit chosen(index); });
    m_keys.push_back(key);
}

void ChoiceGroup::setCount(int count)
{
    while (int(m_keys.size()) < count)
        add();
    m_count = count;
    for (size_t i = 0; i < m_keys.size(); ++i)
        m_keys[i]->setVisible(int(i) < count);
}

void ChoiceGroup::describe(int index, const QString& name, const QString& shortcut)
{
    key(index).setAccessibleName(name);
    key(index).setToolTip(wording::withKey(name, shortcut));
}

void ChoiceGroup::mark(int index)
{
    for (int i = 0; i < int(m_keys.size()); ++i) {
        UTIL_PushButton& key = *m_keys[size_t(i)];
        key.setAutoExclusive(false); // or none could be marked
        key.setChecked(i == index);
        key.setAutoExclusive(true);
    }
    // Tab stops at the marked key or, if there is none, at the first.
    const size_t stop = index >= 0 && index < m_count ? size_t(index) : 0;
    for (size_t i = 0; i < m_keys.size(); ++i)
        m_keys[i]->setFocusPolicy(i == stop ? Qt::TabFocus : Qt::NoFocus);
}

void ChoiceGroup::markApart(int index, bool isOn)
{
    key(index).setAutoExclusive(false);
    key(index).setChecked(isOn);
    key(index).setFocusPolicy(Qt::TabFocus);
}

} // namespace pad
