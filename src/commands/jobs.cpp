#include "commands/jobs.h"
#include "document/resizing.h"
#include "pixels/RuntimeError.h"

namespace velara {

Job engineJob(std::function<void(cBitFilter&)> work)
{
    return [work = std::move(work)](Document& draft, cBitFilter& filter) {
        work(filter);
        draft.takeFrom(filter);
    };
}

Job operationJob(const Operation& operation, Arguments arguments)
{
    return engineJob([&operation, arguments = std::move(arguments)](cBitFilter& f) { operation.call(f, arguments); });
}

Job presetJob(const Preset& preset) { return operationJob(*findOperation(preset.operation), preset.arguments); }

Job filterJob(const FilterRow& row, const FilterArgs& args)
{
    return operationJob(*findOperation(row.operation), row.arguments(args));
}

Job sizeJob(const SizeWord& w)
{
    if (w.kind == SizeWord::Rotate) return [&w](Document& d, cBitFilter& f) { rotateImage(d, f, w.value, w.quality); };
    return [&w](Document& d, cBitFilter& f) { zoomImage(d, f, w.value, w.kind == SizeWord::Enlarge, w.quality); };
}

After afterOf(const SizeWord& word) { return word.kind == SizeWord::Rotate ? After::Step : After::Sizing; }

} // namespace velara
