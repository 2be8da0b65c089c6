#include "tools/Tools.h"
#include "engine/cBitFilter.h"
#include "pixels/RuntimeError.h"
#include "seams/text.h"
#include <algorithm>
#include <cstdlib>
#include <new>

namespace velara {

Tools::Tools(Document& document, Frame& frame, ToolSurface& surface) : context_(document, frame, surface) {}

const ToolRow* Tools::chosen() const
{
    return context_.stores().pastePending ? &pasteRow() : findTool(context_.setup().CurrentTool);
}

const Tool* Tools::tool() const
{
    if (active_) return active_;
    const ToolRow* row = chosen();
    return row ? &row->tool() : nullptr;
}

const Tool* Tools::underWay() const
{
    if (active_ || open_) return active_ ? active_ : open_;
    return context_.stores().pastePending && context_.hasEngine() ? &pasteRow().tool() : nullptr;
}

/// Runs a part of an event. False when this object was destroyed by it.
template <class Action> bool Tools::guarded(Action action)
{
    const std::weak_ptr<int> life = context_.life;
    try {
        action();
    } catch (const RuntimeError&) { // the event ends here, the program continues
    } catch (const Cancelled&) {
    } catch (const std::bad_alloc&) {
    }
    return !life.expired();
}

/// A change of the document is under way: no tool may begin anything.
bool Tools::isWaiting() const { return !context_.down && context_.workspace().isBusy(context_.document.handle()); }

void Tools::showPointer()
{
    const ToolRow* row = chosen();
    context_.surface.setPointer(isWaiting() ? Pointer::Waiting : row ? row->pointer : Pointer::Default);
}

Footprint Tools::footprint() const
{
    const Tool* const holder = tool();
    return holder && context_.document.PictureExists() && !isWaiting() ? holder->footprint(context_) : Footprint();
}

void Tools::press(int button, int x, int y)
{
    ToolContext& c = context_;
    if (!c.document.PictureExists()) return;
    if (!guarded([&] { c.surface.activate(); }) || !c.document.PictureExists()) return;
    if (button == Left && c.down && active_) drop(); // the release of the previous drag went elsewhere
    if (isWaiting()) {
        if (button == Right && c.computed) c.workspace().cancel(c.document.handle(), c.computed);
        return;
    }
    c.at = c.press = {x, y};
    if (button == Left) {
        c.start = c.at;
        c.last = c.at;
        c.down = true;
        c.moving = c.moved = c.connect = c.corner = false;
        active_ = nullptr;
        if (const ToolRow* row = chosen()) {
            active_ = &row->tool();
            c.name = row->caption;
            c.surface.setPointer(row->pointer);
            bool taken = false;
            if (!guarded([&] { taken = active_->press(c); })) return;
            if (!taken) active_ = nullptr;
        }
    }
    c.last = {x, y};
    showHint();
}

void Tools::move(int button, int x, int y)
{
    ToolContext& c = context_;
    if (!c.document.PictureExists()) return;
    c.at = {x, y};
    if (!active_) {
        toolChosen();
        showPointer();
    }
    showPosition(button);
    const Tool* const holder = tool();
    if (button == Left && active_ && !guarded([&] { holder->drag(c); })) return;
    if (button == NoButton && !active_ && holder && !isWaiting() && !guarded([&] { holder->hover(c); })) return;
    c.last = {x, y};
    if (c.stores().pastePending) showHint();
}

void Tools::release(int button, int x, int y)
{
    ToolContext& c = context_;
    if (!c.document.PictureExists()) {
        active_ = nullptr;
        c.down = c.moving = false;
        return;
    }
    c.at = {x, y};
    if (button == Left && c.down && active_) {
        const Tool* const holder = active_;
        c.down = false; // a second release ends the drag without a commit
        if (!guarded([&] { holder->release(c); })) return;
        open_ = holder->unfinished(c) ? holder : nullptr;
    } else if (button == Right) {
        cancel();
    }
    c.last = {x, y};
    endRelease();
}

/// Removes temporary displays and restores the committed picture.
void Tools::cancel()
{
    ToolContext& c = context_;
    if (const Tool* gesture = underWay()) gesture->cancel(c);
    open_ = nullptr;
    if (c.hasEngine()) guarded([&] { c.preview.restore(); });
    c.preview.takeRestored();
    c.surface.UpdateImage();
}

bool Tools::drop()
{
    if (!underWay()) return false;
    cancel();
    endRelease();
    showPointer();
    return true;
}

void Tools::giveWay()
{
    if (active_ || open_) drop();
}

void Tools::toolChosen()
{
    const ToolRow* row = chosen();
    if (active_ || !open_) return;
    if (!row || &row->tool() != open_ || !open_->unfinished(context_)) drop();
}

void Tools::select(Selecting what)
{
    ToolContext& c = context_;
    if (!c.document.PictureExists()) return;
    if (active_ || open_) drop();
    cBitRegion& region = c.document.Region;
    if (what == Selecting::Inverted)
        region.Invert();
    else if (what == Selecting::All)
        region.setRegion(region.RegionMain());
    else
        region.setRegion(Region::rectangle(0, 0, 0, 0));
    region.Crop();
    c.surface.UpdateImage();
    endRelease();
}

void Tools::pictureReplaced()
{
    if (!active_ && open_) drop();
}

void Tools::showHint()
{
    const Tool* gesture = underWay();
    context_.frame.setStatus(Panel::Hint, gesture ? shown("Tools", gesture->hint(context_)) : QString());
}

/// The end of every release: the outline runs again and the engine gets the working region.
void Tools::endRelease()
{
    ToolContext& c = context_;
    if (c.document.Region.IsEmptyRegion())
        c.surface.StopTimer();
    else
        c.surface.StartTimer();
    if (c.hasEngine()) c.filter().setBitsRegion(c.document.Region.working());
    c.down = c.moving = false;
    active_ = nullptr;
    toolChosen(); // one chosen during the drag
    showHint();
    c.workspace().goOn(c.document.handle()); // starts what waited for the end of the stroke
}

void Tools::deactivated()
{
    ToolContext& c = context_;
    c.frame.setStatus(Panel::Hint, {});
    if (active_) {
        active_->cancel(c);
        open_ = nullptr;
    }
    if ((active_ || c.stores().pastePending) && c.hasEngine())
        if (!guarded([&] { c.preview.restore(); })) return;
    active_ = nullptr;
    c.down = c.moving = false;
    c.workspace().goOn(c.document.handle());
}

void Tools::showPosition(int button)
{
    const ToolContext& c = context_;
    const int x = std::max(c.at.x, 0), y = std::max(c.at.y, 0); // a drag may go on beyond the edge
    c.frame.setStatus(Panel::Pos, QStringLiteral("X:%1 Y:%2").arg(x).arg(y));
    if (button == Left)
        c.frame.setStatus(Panel::Ext,
                          QStringLiteral("%1,%2").arg(std::abs(c.at.x - c.start.x)).arg(std::abs(c.at.y - c.start.y)));
}

bool Tools::keyDown(int key)
{
    ToolContext& c = context_;
    if (!c.document.PictureExists()) return false;
    const Point steps[] = {{-1, 0}, {0, -1}, {1, 0}, {0, 1}};
    if (key >= ArrowLeft && key <= ArrowDown) {
        const Point step = steps[key - ArrowLeft];
        move(NoButton, c.last.x + step.x, c.last.y + step.y);
        return true;
    }
    if (key == Escape) return drop() || c.workspace().cancel(c.document.handle());
    const Tool* const holder = tool();
    if (!holder) return false;
    if (key == Enter) return end(&Tool::finish);
    if (key != Space) return false;
    if (const ToolRow* row = chosen(); row && !active_) c.name = row->caption;
    if (guarded([&] { holder->space(c); })) showHint();
    return true;
}

bool Tools::doubleClick(int x, int y)
{
    context_.at = {x, y};
    return context_.document.PictureExists() && !active_ && tool() && end(&Tool::doubleClick);
}

/// Ends a gesture in the given way. False: there was none to end.
bool Tools::end(bool (Tool::*how)(ToolContext&) const)
{
    bool ended = false;
    if (!guarded([&] { ended = (tool()->*how)(context_); }) || !ended) return ended;
    if (open_ && !open_->unfinished(context_)) open_ = nullptr;
    endRelease();
    return true;
}

bool Tools::keyUp(int key)
{
    const Tool* const holder = tool();
    if (key != Ctrl || !holder || !context_.document.PictureExists()) return false;
    guarded([&] { holder->ctrlReleased(context_); });
    return true;
}

} // namespace velara
