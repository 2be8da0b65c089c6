// Reading pictures through the child: the reasons for bad files, and the handling of misbehaving children.
#include "fileio/load/PictureLoader.h"
#include "fileio/load/WarmReaders.h"
#include "fileio/writers/GifWriter.h"
#include "fileio/writers/iconFile.h"
#include "pixels/threads/parallelFor.h"
#include "support/files.h"
#include "support/pictures.h"
#include "support/places.h"
#include <sys/resource.h>

namespace velara {

namespace {

using namespace std::chrono_literals;

const QString kDecoder = builtPath("velara-decode");

struct PictureLoader : FolderTest {
    /// A program that runs the script in place of the helper.
    QString fakeDecoder(const QByteArray& script) const
    {
        const QString fake = put(
            "fake", "#!/usr/bin/env python3\nimport os, socket, struct, sys, time\n"
                    "s = socket.socket(fileno=3)\n"
                    "def opening(w, h, why=b'', magic=0x31444c56, dots=(0, 0), parts=(0, 0, 0, 0, 0, 0),\n"
                    "            pages=0, kind=b''):\n"
                    "    s.send(struct.pack('<Iii208si12s20x2d6I8x', magic, w, h, why, pages, kind, *dots, *parts))\n" +
                        script);
        QFile::setPermissions(fake, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return fake;
    }
};

std::chrono::seconds processorTimeOfChildren()
{
    rusage used{};
    getrusage(RUSAGE_CHILDREN, &used);
    return std::chrono::seconds(used.ru_utime.tv_sec + used.ru_stime.tv_sec);
}

const QByteArray kPicture = "P6\n3 2\n255\n"
                            "abcdefghi"
                            "jklmnopqr";

} // namespace

// More rows than all slots together hold, of a width that leaves a remainder in each slot.
TEST_F(PictureLoader, HandsOverMoreThanTheSharedMemoryHolds)
{
    constexpr int kWidth = 1237, kHeight = 2003;
    QByteArray contents = "P6\n1237 2003\n255\n";
    const Bits wanted = drawnBits(kWidth, kHeight, [&](int x, int y) {
        const Pixel p{{std::uint8_t((x * 7 + y * 13) ^ x >> 3 ^ y >> 2), std::uint8_t(x), std::uint8_t(y), 0}};
        contents.append(char(p.c[2])).append(char(p.c[1])).append(char(p.c[0]));
        return p;
    });
    const LoadedPicture picture = loadThroughDecoder(put("Straße.PPM", contents), "PPM", kDecoder);
    EXPECT_TRUE(sameBits(wanted, picture.bits)) << picture.reason.toStdString();
}

TEST_F(PictureLoader, TheFourthByteIsNotTheChilds)
{
    const QByteArray script = "import mmap\nmmap.mmap(4, 1 << 20)[0:8] = b'\\1\\2\\3\\xff' * 2\n"
                              "opening(2, 1); s.send(struct.pack('<i', 0))\n";
    const LoadedPicture picture = loadThroughDecoder(put("x.ppm", kPicture), "ppm", fakeDecoder(script));
    EXPECT_TRUE(sameBits(flatBits(2, 1, 1, 2, 3), picture.bits)) << picture.reason.toStdString();
}

TEST_F(PictureLoader, TakesWhatAPictureCarries)
{
    const QByteArray script =
        "opening(1, 1, dots=(72, 300), parts=(5, 20000, 1, 3, 7, 4), pages=12, kind=b'gif')\n"
        "for part in b'exif!', b'x' * 16384, b'y' * 3616, b'i', b'abc', b'Lens\\tX\\n', b'icc!': s.send(part)\n"
        "s.send(struct.pack('<i', 0))\n";
    const LoadedPicture picture = loadThroughDecoder(put("x.ppm", kPicture), "ppm", fakeDecoder(script));
    EXPECT_EQ(picture.camera.exif + picture.camera.iptc, "exif!i");
    EXPECT_EQ(picture.camera.xmp, QByteArray(16384, 'x') + QByteArray(3616, 'y'));
    EXPECT_EQ(picture.camera.comment + ' ' + picture.properties, "abc Lens\tX\n");
    EXPECT_EQ(picture.camera.profile, "icc!");
    EXPECT_EQ(picture.camera.dotsAcross, 72);
    EXPECT_EQ(picture.camera.dotsDown, 300);
    EXPECT_EQ(picture.pages, 12);
    EXPECT_EQ(picture.format, "gif");

    const QByteArray lie = "opening(1, 1, pages=-3, kind=b'\\xff' * 12); s.send(struct.pack('<i', 0))\n";
    const LoadedPicture lied = loadThroughDecoder(put("x.ppm", kPicture), "ppm", fakeDecoder(lie));
    EXPECT_TRUE(lied.ok()) << lied.reason.toStdString();
    EXPECT_EQ(lied.pages, 1);
    EXPECT_EQ(lied.format, "");
}

TEST_F(PictureLoader, TellsTheReaderWhatIsWanted)
{
    const QByteArray script = "opening(0, 0, ' '.join(sys.argv[1:]).encode())\n";
    const QString file = put("x.ppm", kPicture), fake = fakeDecoder(script);
    const int all = threadCount();
    setThreadCount(3); // several programs share the processors
    EXPECT_TRUE(loadThroughDecoder(file, "ppm", fake).reason.endsWith(": ppm threads=3"));
    setThreadCount(1);
    EXPECT_TRUE(loadThroughDecoder(file, "ppm", fake, {}, {}, 3).reason.endsWith(": ppm page=3 threads=1"));
    readInSrgb(false);
    EXPECT_TRUE(loadThroughDecoder(file, "ppm", fake).reason.endsWith(": ppm stored threads=1"));
    readInSrgb(true);
    EXPECT_TRUE(loadSmall(file, "ppm", fake, {9, 9}).reason.endsWith(": ppm bare threads=1"));
    setThreadCount(all);
}

TEST_F(PictureLoader, SaysWhatIsWrongWithAFile)
{
    const QByteArray bmp =
        QByteArray::fromHex("424d 3600 0000 0000 0000 3600 0000 2800 0000 60ea 0000 60ea 0000 0100 1800");
    const QString tooBig =
        " can't be read: it is wider or higher than 32767 pixels, or has more than 268 million pixels";
    const QString hollow = " can't be read: it is damaged: it has hardly any bytes for its 16000 x 16000 pixels";
    const QByteArray ilbm = QByteArray::fromHex("464f524d 000003ac 494c424d 424d4844 00000014 3e80 3e80 0000 0000 18 00"
                                                "01 00 0000 0101 3e80 3e80 424f4459 00000380");
    QDir(folder.path()).mkdir("folder.png");
    const struct {
        QString path, extension, reason;
    } kCases[] = {
        {path("none.png"), "png", "none.png can't be read: there is no such file"},
        {path("folder.png"), "png", "folder.png can't be read: it is a folder"},
        {"/dev/null", "png", "null can't be read: it is not an ordinary file"},
        {put("empty.png", ""), "png", "empty.png can't be read: the file is empty"},
        {put("zip.png", "PK\x03\x04 and so on"), "png", "zip.png can't be read: it is damaged or not a PNG picture"},
        {put("garbage.tif", "garbage"), "tif", "garbage.tif can't be read: it is damaged or not a TIFF picture"},
        {put("picture.png", "garbage"), "png", "picture.png can't be read: it is damaged or not a PNG picture"},
        {put("a.jpeg", "garbage"), "jpeg", "a.jpeg can't be read: it is damaged or not a JPEG picture"},
        {put("a.xyz", "garbage"), "xyz", "a.xyz can't be read: there is no reader for .xyz files"},
        {put("a.--cage", "garbage"), "--cage", "a.--cage can't be read: there is no reader for .--cage files"},
        {put("a", "garbage"), "", "a can't be read: its name has no extension to tell what it is"},
        {put("big.bmp", bmp + QByteArray(24, '\0')), "bmp", "big.bmp" + tooBig},
        {put("big.ppm", "P6\n20000 20000\n255\n"), "ppm", "big.ppm" + tooBig},
        {put("big.wbmp", QByteArray("\0\0\x82\x80\0\x01", 6)), "wbmp", "big.wbmp" + tooBig},
        {put("bomb.ppm", "P6\n16000 16000\n255\n"), "ppm", "bomb.ppm" + hollow},
        {put("bomb.iff", ilbm + QByteArray(900, 'i')), "iff", "bomb.iff" + hollow},
    };
    for (const auto& c : kCases) {
        const LoadedPicture picture = loadThroughDecoder(c.path, c.extension, kDecoder);
        EXPECT_FALSE(picture.ok());
        EXPECT_EQ(picture.reason.toStdString(), c.reason.toStdString());
    }
}

TEST_F(PictureLoader, SurvivesEveryMisbehaviourOfTheChild)
{
    const QByteArray rest = "\ntime.sleep(20)\n";
    const struct {
        QByteArray script;
        const char* reason;
    } kCases[] = {
        {"sys.exit(0)", "gave up"},
        {"os.abort()", "gave up"},
        {"os.kill(os.getpid(), 9)", "too long"},
        {"s.close(); time.sleep(20)", "too long"},
        {"time.sleep(20)", "too long"},
        {"s.send(b'x')" + rest, "false answer"},
        {"s.send(b'x' * 1000)" + rest, "false answer"},
        {"opening(10, 10, magic=1)" + rest, "false answer"},
        {"opening(60000, 60000)" + rest, "false answer"},
        {"opening(-5, 5)" + rest, "false answer"},
        {"opening(0, 5)" + rest, "false answer"},
        {"opening(0, 0)" + rest, "false answer"},
        {"opening(0, 0, b'because\\x01 it is so')", "because\\x01 it is so"},
        {"opening(0, 0, b'\\xff' * 244)", "can't be read"},
        {"opening(10, 10); s.send(struct.pack('<i', 3))" + rest, "false answer"},
        {"opening(10, 10, parts=(1 << 30, 0, 0, 0, 0, 0))" + rest, "false answer"},
        {"opening(10, 10, parts=(9, 0, 0, 0, 0, 0)); s.send(b'x')" + rest, "false answer"},
        {"opening(10, 10, parts=(0, 9, 0, 0, 0, 0))" + rest, "too long"},
        {"opening(9, 9999); [s.send(struct.pack('<i', 0)) for _ in range(99)]" + rest, "false answer"},
        {"opening(10, 10); os.ftruncate(4, 0)" + rest, "gave up"}, // the seal makes it an error
        {"opening(10, 10)" + rest, "too long"},
#ifndef __SANITIZE_ADDRESS__ // its reports go to files
        {"try: os.write(os.open(sys.argv[0], os.O_WRONLY), b'x')\nexcept OSError: opening(0, 0, b'full')",
         "full"}, // writing a byte to a file fails
#endif
        {"opening(10, 10); sys.exit(0)", "gave up"},
        {"opening(10, 10); sys.exit(3)", "between its first row"},
    };
    const QString file = put("x.ppm", kPicture);
    for (const auto& c : kCases) {
        DecoderLimits limits;
        limits.wallClock = std::string_view(c.reason) == "too long" ? 500ms : 10000ms;
        const LoadedPicture picture = loadThroughDecoder(file, "ppm", fakeDecoder(c.script), limits);
        EXPECT_FALSE(picture.ok()) << c.script.toStdString();
        EXPECT_NE(picture.reason.toStdString().find(c.reason), std::string::npos)
            << c.script.toStdString() << ": " << picture.reason.toStdString();
    }
    for (const QString& decoder : {QString(), QString("/nonexistent/velara-decode"), put("notAProgram", "text")}) {
        const LoadedPicture picture = loadThroughDecoder(file, "ppm", decoder);
        EXPECT_TRUE(picture.reason.startsWith("x.ppm can't be read: the program that reads pictures"));
    }
}

// By its name or by its mark alone.
TEST_F(PictureLoader, TheProgramOfTheCommonReadersLeavesOthersToTheOneThatHasAll)
{
    const QByteArray icon = iconBytes(iconOf(flatBits(16, 16, 1, 2, 3), {16, 16}, {}));
    const QString alone = path("velara-decode");
    ASSERT_TRUE(QFile::copy(kDecoder, alone));
    for (const char* name : {"a.ico", "a.png", "a.unheard"}) {
        const QString file = put(name, icon), extension = QString(name).mid(2);
        EXPECT_EQ(16, loadThroughDecoder(file, extension, kDecoder).bits.width()) << name;
        const QString reason = loadThroughDecoder(file, extension, alone).reason;
        EXPECT_EQ(extension == "ico", reason.contains("velara-decode-all")) << reason.toStdString();
        EXPECT_FALSE(reason.isEmpty());
    }
    EXPECT_EQ(3, loadThroughDecoder(put("a.ppm", kPicture), "ppm", alone).bits.width());
}

// Forks of a loaded reader are as good as readers started anew, and what they can't be asked is done by such.
TEST_F(PictureLoader, WarmReadersReadAsColdOnes)
{
    const QString good = put("x.ppm", kPicture), bad = put("bad.png", "no picture");
    const auto cold = loadThroughDecoder(good, "ppm", kDecoder);
    const QString reason = loadThroughDecoder(bad, "png", kDecoder).reason;
    const QString rare = put("rare.ppm", "<svg xmlns='http://www.w3.org/2000/svg' width='3' height='2'/>");
    const auto drawn = loadThroughDecoder(rare, "ppm", kDecoder);
    EXPECT_FALSE(drawn.bits.isNull()) << drawn.reason.toStdString();
    const auto starter = startReader;
    for (const QStringList& extensions : {QStringList(), QStringList{"png", "ppm"}}) {
        const WarmReaders warm(extensions);
        ASSERT_TRUE(warm.started());
        EXPECT_NE(starter, startReader);
        for (int i = 0; i < 3; ++i) EXPECT_EQ(cold.bits, loadThroughDecoder(good, "ppm", "/nonexistent").bits) << i;
        EXPECT_EQ(reason, loadThroughDecoder(bad, "png", "/nonexistent").reason);
        EXPECT_EQ(drawn.bits, loadThroughDecoder(rare, "ppm", "/nonexistent").bits) << "of a rare kind under its name";
        EXPECT_NE(cold.properties, "");
        EXPECT_EQ(cold.properties, loadThroughDecoder(good, "ppm", "/nonexistent").properties);
        EXPECT_EQ(QSize(3, 2), loadSmall(good, "ppm", "/nonexistent", {9, 9}).size) << "with a wish";
        EXPECT_EQ(cold.bits, loadThroughDecoder(good, QString(300, 'x'), kDecoder).bits) << "started anew";
    }
    EXPECT_EQ(cold.bits, loadThroughDecoder(good, "ppm", kDecoder).bits);
}

// A child that does nothing is killed after two seconds, and at once when the user cancels.
TEST_F(PictureLoader, WaitsNoLongerThanAPersonWould)
{
    const QString file = put("x.ppm", kPicture);
    for (const char* script : {"os.kill(os.getpid(), 19)", "time.sleep(60)"}) {
        const auto start = std::chrono::steady_clock::now();
        EXPECT_TRUE(loadThroughDecoder(file, "ppm", fakeDecoder(script)).reason.contains("too long"));
        EXPECT_LT(std::chrono::steady_clock::now() - start, 15s);
    }
    int asked = 0;
    const GoOn twice = [&](std::chrono::milliseconds) { return ++asked < 2; };
    EXPECT_TRUE(loadThroughDecoder(file, "ppm", path("fake"), {}, twice).reason.contains("given up"));
    EXPECT_EQ(asked, 2);
}

// Its messages never rest: time limits and cancelling must work nevertheless.
TEST_F(PictureLoader, LooksUpFromRowsThatKeepComing)
{
    const QString file = put("x.ppm", QByteArray(100000, 'x'));
    const auto sending = [](int rows, const QByteArray& then) { // of 8000, a gigabyte
        return "opening(30000, 8000)\nfor y in range(0, " + QByteArray::number(rows) +
               ", 2):\n    s.send(struct.pack('<i', y))\n" + then;
    };
    DecoderLimits shortTime, littleSleep;
    shortTime.wallClock = 100ms;
    littleSleep.idle = 300ms;
    EXPECT_TRUE(loadThroughDecoder(file, "ppm", fakeDecoder(sending(8000, "")), shortTime).reason.contains("too long"));
    const GoOn patience = [](auto waited) { return waited < 100ms; };
    EXPECT_TRUE(loadSmall(file, "ppm", path("fake"), {9, 9}, {}, patience).reason.contains("given up"));
    // On a loaded machine rows wait at every look, so that it is caught asleep only after the last one.
    const QString sleeper = fakeDecoder(sending(500, "time.sleep(60)"));
    EXPECT_TRUE(loadThroughDecoder(file, "ppm", sleeper, littleSleep).reason.contains("too long"));
}

// A file packed as tightly as its format permits has all the bytes it needs.
TEST_F(PictureLoader, ReadsPicturesOfOneColourHoweverSmall)
{
    constexpr int kSide = 8000;
    QImage black(kSide, kSide, QImage::Format_Mono);
    black.fill(0);
    EXPECT_TRUE(black.save(path("flat.png")));
    EXPECT_TRUE(writeGif({kSide, kSide, std::vector<std::uint8_t>(kSide * kSide), {0xffffff}}, path("flat.gif")));
    const auto field = [](quint16 tag, int value) { // of four bytes
        const std::array<quint16, 6> words{tag, 4, 0, 1, quint16(value >> 16), quint16(value)};
        QByteArray bytes;
        for (const quint16 word : words) bytes.append(char(word >> 8)).append(char(word));
        return bytes;
    };
    put("flat.tif", QByteArray::fromHex("4d4d 002a 00000008 0008") + field(256, kSide) + field(257, kSide) +
                        field(258, 1) + field(259, 4) + field(262, 0) + field(273, 110) + field(278, kSide) +
                        field(279, kSide / 8) + QByteArray(4, '\0') +
                        QByteArray(kSide / 8, '\xff')); // a line equal to the one above takes a bit
    for (const char* extension : {"png", "gif", "tif"}) {
        const SmallPicture small = loadSmall(path(QString("flat.") + extension), extension, kDecoder, {9, 9});
        EXPECT_EQ(small.size, QSize(kSide, kSide)) << extension << small.reason.toStdString();
        EXPECT_EQ(small.reason, "");
    }
    // A file that has lost most of its bytes shows the rest.
    const QString cut = put("cut.ppm", "P6\n100 100\n255\n" + QByteArray(100, 'c'));
    EXPECT_TRUE(loadThroughDecoder(cut, "ppm", kDecoder).reason.contains("cut off"));
    // One whose end is there and whose middle is not says so after its rows.
    QImage busy(200, 200, QImage::Format_RGB32);
    for (int i = 0; i < 200 * 200; ++i) busy.setPixel(i % 200, i / 200, qRgb(i * i, 7 * i, i / 3));
    ASSERT_TRUE(busy.save(path("hole.jpg")));
    QByteArray hole = fileBytes(path("hole.jpg"));
    for (const bool isThere : {true, false}) {
        const LoadedPicture picture = loadThroughDecoder(put("hole.jpg", hole), "jpg", kDecoder);
        EXPECT_TRUE(picture.ok());
        EXPECT_EQ(picture.reason.contains("cut off"), !isThere) << picture.reason.toStdString();
        hole.remove(hole.size() / 2, hole.size() / 4);
    }
    // One whose checksums hold and whose pixels end after the first row.
    const QString brief =
        put("brief.png",
            QByteArray::fromHex(
                "89504e470d0a1a0a0000000d4948445200000004000000030800000000919ff11a0000000d49444154789c63484c4a4e0100"
                "03d9018b2381a0ec0000000049454e44ae426082"));
    EXPECT_TRUE(loadThroughDecoder(brief, "png", kDecoder).reason.contains("between its first row"));
}

TEST_F(PictureLoader, StopsAReaderThatLoopsOrTakesTooMuchMemory)
{
    DecoderLimits limits;
    limits.cpuSeconds = 1;
    const QString file = put("x.ppm", kPicture);
    const auto before = processorTimeOfChildren();
    for (const char* loop : {"while True: pass", "import signal\nsignal.signal(signal.SIGXCPU, 1)\nwhile True: pass"})
        EXPECT_TRUE(loadThroughDecoder(file, "ppm", fakeDecoder(loop), limits).reason.contains("too long"));
    EXPECT_LT(processorTimeOfChildren() - before, 15s);

    const QString slow = fakeDecoder("opening(8000, 8000, magic=0x31434c56)\n"
                                     "while time.process_time() < 3: pass\n"
                                     "opening(0, 0, b'done')");
    const QString large = put("large.ppm", QByteArray(1 << 20, 'x')), small = put("small.ppm", QByteArray(10000, 'x'));
    EXPECT_TRUE(loadThroughDecoder(large, "ppm", slow, limits).reason.contains("done"))
        << "a picture of many pixels has more time";
    EXPECT_TRUE(loadThroughDecoder(small, "ppm", slow, limits).reason.contains("too long")) << "but not for a claim";

    const QByteArray drawing = "import threading\ndef work():\n    while time.process_time() < 1.2: pass\n"
                               "other = threading.Thread(target=work); other.start(); other.join()\n"
                               "opening(0, 0, b'done')";
    DecoderLimits alert;
    alert.idle = 300ms;
    EXPECT_TRUE(loadThroughDecoder(file, "ppm", fakeDecoder(drawing), alert).reason.contains("done"))
        << "its other thread works";

#ifndef __SANITIZE_ADDRESS__ // it runs without this limit
    DecoderLimits tight;     // the program itself starts within it
    tight.memory = 400 << 20;
    const QString big =
        put("big.tga", QByteArray::fromHex("00000a000000000000000000803e803e1800") + QByteArray(1 << 20, 'x'));
    const QString reason = loadThroughDecoder(big, "tga", kDecoder, tight).reason;
    EXPECT_FALSE(reason.isEmpty());
    EXPECT_FALSE(reason.contains("cut off")) << reason.toStdString(); // it failed before the missing pixels
    EXPECT_TRUE(loadThroughDecoder(file, "ppm", kDecoder, tight).ok());
#endif
}

TEST_F(PictureLoader, DamagedSamplesCostNothingButTheChild)
{
    if (!QFile::exists(corpusPath("README.md"))) GTEST_SKIP();
    for (const char* name : {"bomb.gif", "cut_heap.cut", "ico_heap.ico", "negative_size.ppm", "psd_heap.psd",
                             "ras_heap.ras", "reallybig.bmp"}) {
        const QString sample = corpusPath("malformed/") + name;
        const LoadedPicture picture = loadThroughDecoder(sample, sample.section('.', -1), kDecoder);
        EXPECT_TRUE(picture.ok() != picture.reason.startsWith(QString(name) + " can't be read: ")) << name;
        EXPECT_FALSE(picture.reason.contains("sanitizer")) << name; // a fault of ours, not of a library
    }
}

} // namespace velara
