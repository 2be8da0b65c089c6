// The real program on real files.
#pragma once
#include "support/files.h"
#include "support/places.h"
#include <QImage>
#include <QProcess>
#include <functional>

namespace velara {

struct BatchRun {
    int status; // -1: it crashed or hung
    QString errors, output;
};

inline constexpr int kWidth = 12, kHeight = 9;
inline constexpr const char* kFullDisk = "trap '' XFSZ && ulimit -f 40000"; // 20 MB: enough for the decoder child

struct BatchTest : FolderTest {
    QTemporaryDir temporary;

    void SetUp() override { ASSERT_TRUE(input().save(path("in.ppm"))); }

    /// Runs it in the folder; arguments are separated by blanks. before is a shell command to run first.
    BatchRun run(const QString& arguments, const QString& before = "true") const
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("TMPDIR", temporary.path());
        environment.remove("DISPLAY");
        environment.remove("QT_QPA_PLATFORM");
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder.path());
        process.start("/bin/sh", QStringList{"-c", before + " && exec \"$0\" \"$@\"", builtPath("velara-batch")} +
                                     arguments.split(u' ', Qt::SkipEmptyParts));
        const bool ended = process.waitForFinished(20000) && process.exitStatus() == QProcess::NormalExit;
        return {ended ? process.exitCode() : -1, process.readAllStandardError(), process.readAllStandardOutput()};
    }
    /// Whether a run has that exit status and that text on standard error.
    ::testing::AssertionResult ends(int status, const QString& arguments, const QString& said = {},
                                    const QString& before = "true") const
    {
        const BatchRun outcome = run(arguments, before);
        if (outcome.status == status && outcome.errors.contains(said)) return ::testing::AssertionSuccess();
        return ::testing::AssertionFailure() << arguments.toStdString() << ": " << outcome.status << ", not " << status
                                             << "; " << outcome.errors.toStdString();
    }
    /// The result of steps on the input picture.
    QImage result(const QString& steps, QSize size = {kWidth, kHeight}, const QString& of = "in.ppm") const
    {
        EXPECT_TRUE(ends(0, of + ' ' + steps + " out.ppm"));
        const QImage picture(path("out.ppm"));
        EXPECT_EQ(size, picture.size()) << steps.toStdString();
        return picture;
    }
    static QImage input(const std::function<bool(int x, int y)>& inverted = [](int, int) { return false; })
    {
        QImage picture(kWidth, kHeight, QImage::Format_RGB32);
        for (int y = 0; y < kHeight; ++y)
            for (int x = 0; x < kWidth; ++x)
                picture.setPixel(x, y, qRgb(x, 100 + y, y * kWidth + x) ^ (inverted(x, y) ? 0xFFFFFF : 0));
        return picture;
    }
};

} // namespace velara
