// The entry of the logic test programs: native, and under Wine on the DLLs.
#include <gtest/gtest.h>
#ifdef _WIN32
#include "support/CrashReporter.h"
#endif

int main(int argc, char** argv)
{
#ifdef _WIN32
    installCrashReporter();
#endif
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
