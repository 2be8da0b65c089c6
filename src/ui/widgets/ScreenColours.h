// ScreenColours: the tables by which pictures are shown in the colours of each screen. The program has one, or none
// where that isn't wanted; it follows the profiles as they change.
#pragma once
#include "platform/desktop/screen/ScreenProfiles.h"
#include "ui/widgets/ColourTable.h"
#include <QPointer>
#include <map>

class QWidget;
class QWindow;

namespace velara {

class Platform;

class ScreenColours final : public QObject {
    Q_OBJECT
  public:
    /// Begins to look for profiles; platform makes the tables in the background.
    explicit ScreenColours(Platform& platform, std::optional<QDBusConnection> bus = {});
    ~ScreenColours() override;

    /// Null: the widget's screen shows pictures as they are.
    static const ColourTable* tableFor(const QWidget& widget) { return theOne_ ? theOne_->tableOf(widget) : nullptr; }

  private:
    struct Known {
        QByteArray profile;
        std::shared_ptr<const ColourTable> table = {};
    };

    const ColourTable* tableOf(const QWidget& widget) const;
    void refresh();
    void follow(QWindow* window);
    void repaintAll();
    void found(const QString& screen, const QByteArray& profile);

    static ScreenColours* theOne_;
    Platform& platform_;
    ScreenProfiles profiles_;
    std::map<QString, Known> screens_; // by the names of their outputs
};

} // namespace velara
