// What is done to each picture: read, take the steps, write.
#pragma once
#include "batch/CommandLine.h"

namespace velara {

/// Reads a picture among the arguments of a step; throws Failure.
Bits readArgument(Platform& platform, const QString& path, bool partial);
/// Takes the steps in their order; tells of each, and how far it is, where the line is verbose. Throws Failure.
void takeSteps(Session& session, const CommandLine& line);

/// The file that a target stands for, with links resolved. A name that can't become a picture is refused before any
/// work.
QString fileOf(const QString& output);
/// Writes the picture as the line says: as a picture, an icon or a file for the web, of which it returns a line about
/// the file. Throws Failure; what had the name is as it was then.
QString writePictureOf(Session& session, const CommandLine& line, const QString& output);
/// Throws a Failure that says why OUTPUT isn't written, where it isn't.
void checkWritten(const SaveReport& report, const QString& output);
/// Makes a folder for outputs, with those above it; throws Failure.
void makeTargetFolder(const QString& folder);
/// The extensions that pictures are written under, for the user.
QString savedExtensions();

} // namespace velara
