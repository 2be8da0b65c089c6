#include "platform/desktop/clipboard/ClipboardOffer.h"
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace velara {

namespace {

/// Through Qt: on desktops with time limits of their own, and for what this program itself put there.
class ToolkitOffer final : public ClipboardOffer {
  public:
    QStringList types() override { return data() ? data()->formats() : QStringList(); }
    std::optional<QByteArray> bytes(const QString& type, const GoOn&) override
    {
        return data() && data()->hasFormat(type) ? std::optional(data()->data(type)) : std::nullopt;
    }

  private:
    static const QMimeData* data() { return QGuiApplication::clipboard()->mimeData(); }
};

} // namespace

std::unique_ptr<ClipboardOffer> clipboardOffer()
{
    if (QGuiApplication::platformName() == "xcb" && !QGuiApplication::clipboard()->ownsClipboard())
        if (auto offer = xClipboardOffer()) return offer;
    return std::make_unique<ToolkitOffer>();
}

} // namespace velara
