// Appearance: the colours of the windows: the desktop's, with what the person has asked all programs for, or those
// chosen in the options. In programs without a choice or a portal nothing is touched.
#pragma once
#include "platform/desktop/DesktopWishes.h"
#include <QPalette>
#include <QStringView>
#include <span>

namespace velara {

class Machine;

enum class Look { Desktop, Light, Dark, ContrastLight, ContrastDark };

struct LookRow {
    Look look;
    const char *key, *caption; // in the settings; for the person, to be translated as of velara::Appearance
};
std::span<const LookRow> lookRows();

/// What the person has chosen in the options; Desktop for a word that isn't known.
Look chosenLook(Machine& machine);
void chooseLook(Machine& machine, Look look);

/// Its palette; not of Desktop.
QPalette paletteOf(Look look);

/// Changes the application's palette, as the style mends it, and whether things move.
void showLook(Look chosen, const Wishes& wishes);

class Appearance final : public QObject {
    Q_OBJECT
  public:
    /// Shows what is chosen, and follows what the desktop asks for.
    Appearance(Machine& machine, const QDBusConnection& bus);

    /// After another choice.
    void apply();

  private:
    Machine& machine_;
    DesktopWishes wishes_;
};

} // namespace velara
