#include "TestCase.h"

namespace support {

void TestCase::init()
{
    QTest::failOnWarning(QRegularExpression("."));
}

} // namespace support
