#pragma once

#include "Failure.h"

#include <QImage>

#include <optional>

namespace pad {

// The file is the old one or the new one, never a part of it.

/// Writes a picture in the format of the name's extension, PNG where it names none.
std::optional<Failure> writePicture(const QImage& picture, const QString& fileName);
/// Writes PNG, whatever the name.
std::optional<Failure> writePng(const QImage& picture, const QString& fileName);

} // namespace pad
