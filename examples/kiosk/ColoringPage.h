#pragma once

#include <QByteArray>

/// A page to colour, a house in the sun, as the bytes of a picture.
[[nodiscard]] QByteArray coloringPage();
