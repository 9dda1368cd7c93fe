#pragma once

#include "TestCase.h"

#include <optional>

namespace support {

/// The base of a test of saving: for each function a download folder with its appwrite, and in it a folder
/// photos. It is the current folder too.
class SaveTest : public TestCase
{
    Q_OBJECT

protected slots:
    void init();
    void cleanup();

protected:
    [[nodiscard]] QString path(const QString& name) const { return m_folder->filePath(name); }

private:
    std::optional<QTemporaryDir> m_folder;
};

} // namespace support
