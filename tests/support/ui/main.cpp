// Entry of the test programs that need windows.
#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
