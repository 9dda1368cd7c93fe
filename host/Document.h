#pragma once

#include "Failure.h"

#include <QObject>

#include <optional>

class KORVA_EditCanvas;

namespace pad {

/// The picture file behind the drawing.
class Document : public QObject
{
    Q_OBJECT

public:
    explicit Document(KORVA_EditCanvas& editor, QObject* parent = nullptr);

    /// The name of the file; empty for a new drawing.
    [[nodiscard]] QString fileName() const { return m_fileName; }

    /// Brings the picture of a file in; the drawing stays as it is when that fails.
    std::optional<Failure> open(const QString& fileName);
    /// Writes the drawing and takes the file as the one behind it.
    std::optional<Failure> saveAs(const QString& fileName);

signals:
    void fileNameChanged(const QString& fileName);

private:
    void setFileName(const QString& fileName);

    KORVA_EditCanvas& m_editor;
    QString m_fileName;
};

} // namespace pad
