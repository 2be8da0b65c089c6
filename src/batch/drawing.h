// What needs Qt's window library: the system's fonts, and icons. velara-batch-all is linked with it (batch/all);
// velara-batch, which starts in a third of the time without it, becomes that program (batch/first).
#pragma once
#include "batch/outputs/icon.h"
#include "seams/Fonts.h"
#include <QCoreApplication>
#include <memory>

namespace velara {

/// Becomes velara-batch-all where this program can't draw; to be called before anything is read or written. Returns
/// where it can. Throws Failure.
void becomeWhatDraws(char** argv);

/// The process's application object; one that has the system's fonts takes longer to start.
std::unique_ptr<QCoreApplication> makeApplication(bool withFonts);
/// For a process whose application object has them.
std::unique_ptr<Fonts> systemFonts();
/// Throws Failure; an existing file is intact then.
void writeIcon(const Bits& picture, const IconOrder& order, const QString& output);

} // namespace velara
