#pragma once

#include "Failure.h"

#include <QImage>

#include <optional>

namespace pad {

/// Writes a picture in the format of the name's extension, PNG where it names none that can be written. The
/// file is the old one or the new one, never a part.
std::optional<Failure> writePicture(const QImage& picture, const QString& fileName);

} // namespace pad
