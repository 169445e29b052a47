#include <gtest/gtest.h>

#ifdef _WIN32
#include "support/FaultReport.h"
#endif

int main(int argc, char** argv)
{
#ifdef _WIN32
    ::SetUnhandledExceptionFilter(&FaultReport::EndWithTheFault);
#endif
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
