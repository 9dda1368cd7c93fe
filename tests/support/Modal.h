#pragma once

#include <QtWidgets>

#include <functional>

namespace support {

/// Does `work` once the next modal dialog is open, from that dialog's own event loop. A dialog that is
/// still open a while after that fails the test and is taken away, so that no test hangs.
void whenOpen(const std::function<void(QDialog&)>& work);

/// The button of a dialog with exactly this text; null when there is none.
[[nodiscard]] QAbstractButton* button(const QDialog& dialog, const QString& text);
/// Presses the key "OK" or "Cancel" with a pointer, or what stands for it on the keyboard.
void press(QDialog& dialog, const QString& key, bool byKeyboard);
/// The column "byKeyboard" with a row for each way to work a dialog.
void addWays();

/// The texts of the labels that are to be seen, from top to bottom.
[[nodiscard]] QStringList labels(const QDialog& dialog);

} // namespace support
