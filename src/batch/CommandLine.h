// The parsed command line of velara-batch: INPUT, steps in their order, OUTPUT; or many INPUTs, steps, and the folder.
#pragma once
#include "batch/Session.h"
#include "batch/many/ManyOrder.h"
#include "batch/outputs/icon.h"
#include "batch/outputs/web.h"
#include <QStringList>
#include <functional>
#include <vector>

namespace velara {

struct LineStep {
    QString text;                                         // as written
    std::function<void(Session&)> run;                    // throws Failure
    std::function<void(const ReadPicture&)> prepare = {}; // reads the pictures among its arguments
    GoesBack goesBack = GoesBack::Never;
    QStringList fonts = {}; // that it draws with
    std::function<void(Fonts&)> drawBy = {};
    std::optional<RowStep> rows = {};
};

struct CommandLine {
    QString input, output; // of the single way; "-": standard input and output
    std::optional<ManyOrder> many;
    std::vector<LineStep> steps;
    std::optional<WebOrder> web;      // OUTPUT is a web file
    std::optional<IconOrder> icon;    // OUTPUT is an icon; not both
    std::optional<int> threads;       // all cores without it
    std::optional<int> quality;       // 1 to 100, of a format that has one
    QString format, inputFormat;      // extensions, lower case: of many outputs or of "-"; empty: the input's own
    std::optional<CameraKept> camera; // as given
    int page = 1;                     // of INPUT
    bool stored = false;              // colours as the file has them
    bool verbose = false, help = false, list = false, partial = false;

    /// Throws a Failure that names the unusable argument.
    static CommandLine parse(const QStringList& arguments);
    /// Up to this step earlier pictures must be kept; -1 when no step goes back.
    int lastGoingBack() const;
};

/// Parses a step; throws Failure.
LineStep parseStep(const QString& text);
/// Parses "--select" with its shape; throws Failure. The step itself fails when the shape lies outside of the picture.
LineStep parseSelection(const QString& shape);
/// The steps of a recipe's file; throws Failure, which names its line.
std::vector<LineStep> recipeSteps(const QString& path);

/// The output of --help and --list.
QString helpText();
QString listText();

} // namespace velara
