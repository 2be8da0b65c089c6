#include "batch/Failure.h"
#include "batch/names/NamePattern.h"
#include <QDateTime>
#include <gtest/gtest.h>

namespace velara {
namespace {

QString named(const QString& pattern, const QString& input = "pics/a/Sea.2.JPG", const QString& dir = "a")
{
    const QDateTime noon(QDate(2026, 2, 3), QTime(12, 0));
    return NamePattern(pattern).nameOf({input, dir, "png", 7, noon.toSecsSinceEpoch()});
}

TEST(NamePattern, FieldsAreFilled)
{
    const std::tuple<const char*, const char*> kCases[] = {
        {"{dir}/{name}.{ext}", "a/Sea.2.png"},
        {"{name}-web.{ext}", "Sea.2-web.png"},
        {"{n:04}.{ext}", "0007.png"},
        {"{n}", "7.png"},
        {"{parent}_{date}.{from}", "a_2026-02-03.jpg"},
        {"{{{name}}}.jpg", "{Sea.2}.jpg"},
        {"{name}.v2", "Sea.2.v2.png"}, // an ending that is no format's is a part of the name
        {"x/{name}.tiff", "x/Sea.2.tiff"},
    };
    for (const auto& [pattern, name] : kCases) EXPECT_EQ(name, named(pattern)) << pattern;
    EXPECT_EQ("Sea.2-{width}x{height}.png", named("{name}-{width}x{height:05}")) << "not known yet";
    EXPECT_EQ("64x00048.png", NamePattern("{width}x{height:05}").nameOf({"a.jpg", "", "png", 1, 0, 64, 48}));
    EXPECT_EQ("b.png", named("{dir}/{name}.{ext}", "b.jpg", "")) << "no slash of an empty folder";
    EXPECT_EQ("x/b.png", named("x/{dir}/{name}.{ext}", "b.jpg", ""));
    EXPECT_EQ(".hidden.png", named("{name}", ".hidden", ""));
    EXPECT_EQ("_b.png", named("{parent}_{name}", "../b.jpg", "")) << "a way up is no folder's name";
}

TEST(NamePattern, WhatIsOfNoUseIsNamed)
{
    const std::tuple<const char*, const char*> kCases[] = {
        {"{nme}.{ext}", "there is no field {nme}; there are {name}, {ext}"},
        {"{name:3}", "go with {n}, {width} and {height} alone"},
        {"{n:0}", "1 to 9"},
        {"{n:x}", "{n:x}"},
        {"{name", "no partner"},
        {"name}", "no partner"},
        {"../{name}", "leads out"},
        {"a/../../{name}", "leads out"},
        {"/etc/{name}", "leads out"},
    };
    for (const auto& [pattern, said] : kCases) try {
            NamePattern{pattern};
            ADD_FAILURE() << pattern;
        } catch (const Failure& failure) {
            EXPECT_EQ(Status::BadArgument, failure.status);
            EXPECT_TRUE(failure.text.contains(said)) << failure.text.toStdString();
        }
}

} // namespace
} // namespace velara
