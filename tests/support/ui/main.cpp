// main() of the test programs that need windows.
#include "ui/widgets/inputs/Spoken.h"
#include <QtWidgets>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    const QTemporaryDir settings; // instead of the user's own
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    QApplication application(argc, argv);
    velara::useSpoken();
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
