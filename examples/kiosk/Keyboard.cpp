#include "Keyboard.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>

namespace {

constexpr int keyWidth = 58;
constexpr int keyHeight = 40;
const QStringList rows{"1234567890ß", "qwertzuiopü", "asdfghjklöä", "yxcvbnm,.-?"};

} // namespace

Keyboard::Keyboard(QWidget* parent) : QWidget(parent)
{
    resize(size);
    setAutoFillBackground(true);
    for (int row = 0; row < rows.size(); ++row) {
        for (int column = 0; column < rows[row].size(); ++column) {
            const QChar letter = rows[row][column];
            addKey({column * keyWidth, row * keyHeight, keyWidth, keyHeight}, letter,
                   letter.toUpper().unicode(), letter);
        }
    }
    const int below = int(rows.size()) * keyHeight;
    auto* shift = new QPushButton("⇧", this);
    shift->setGeometry(0, below, 2 * keyWidth, keyHeight);
    shift->setFocusPolicy(Qt::NoFocus);
    connect(shift, &QPushButton::clicked, this, [this] { setShifted(!m_isShifted); });
    addKey({2 * keyWidth, below, 5 * keyWidth, keyHeight}, " ", Qt::Key_Space, " ");
    addKey({7 * keyWidth, below, 2 * keyWidth, keyHeight}, "⌫", Qt::Key_Backspace, {});
    addKey({9 * keyWidth, below, 2 * keyWidth, keyHeight}, "⏎", Qt::Key_Return, {});
}

void Keyboard::addKey(const QRect& place, const QString& label, int code, const QString& text)
{
    auto* key = new QPushButton(label, this);
    key->setGeometry(place);
    key->setFocusPolicy(Qt::NoFocus); // a tap leaves what is being typed alone
    connect(key, &QPushButton::clicked, this, [this, key, code, text] {
        if (QWidget* const receiver = QApplication::focusWidget()) {
            const QString typedText = text.isEmpty() ? text : key->text();
            QKeyEvent press(QEvent::KeyPress, code, Qt::NoModifier, typedText);
            QCoreApplication::sendEvent(receiver, &press);
        }
        setShifted(false);
        emit typed();
    });
}

void Keyboard::setShifted(bool isShifted)
{
    m_isShifted = isShifted;
    for (auto* key : findChildren<QPushButton*>()) {
        if (key->text().size() == 1 && key->text() != "ß")
            key->setText(isShifted ? key->text().toUpper() : key->text().toLower());
    }
}
