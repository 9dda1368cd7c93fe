#include "TestCase.h"

namespace support {

void TestCase::init()
{
    // What the off-screen platform has to say of every popup is none of ours.
    QTest::failOnWarning(QRegularExpression("^(?!This plugin does not support )"));
}

} // namespace support
