#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

#include <functional>

/// The ground under every target: libFuzzer's entry points, an application off screen with folders of its
/// own, and what counts as a finding. A warning of Qt does, and so do a KORVA_ASSERT and a sanitizer's
/// report.
namespace fuzz {

/// Each target defines it: feeds it one input. The comment at the head of its source says what the bytes
/// mean.
void feed(const QByteArray& input);

/// A folder for this run, which is removed at its end.
[[nodiscard]] QString folder();
/// Writes a file in it anew, and returns its path.
QString write(const QString& name, const QByteArray& bytes);

/// Does one thing that somebody waits for. If it takes the processor longer than `mostSeconds`, that is a
/// finding; the sanitizers make everything about ten times slower. How many things were done is printed at
/// the end, and by name what took longer than 100 ms. With KORVA_FUZZ_STORY in
/// the environment each name is printed before its work.
void swiftly(const char* name, const std::function<void()>& work, double mostSeconds = 1);

/// Whether the picture is there and has no transparent pixel.
[[nodiscard]] bool isOpaque(const QImage& image);

} // namespace fuzz
