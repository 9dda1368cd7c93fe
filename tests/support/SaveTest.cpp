#include "SaveTest.h"

namespace support {

void SaveTest::init()
{
    TestCase::init();
    m_folder.emplace();
    QVERIFY(QDir(path("")).mkpath("appwrite") && QDir(path("")).mkdir("photos"));
    qputenv("KIV_LOCAL_DOWNLOAD_PATH", path("").toUtf8());
    QVERIFY(QDir::setCurrent(path("")));
}

void SaveTest::cleanup()
{
    QDir::setCurrent("/");
    m_folder.reset();
}

} // namespace support
