// Recovery: the pictures that programs which died left unsaved: finds them at the start, offers them in fRecovery and
// on the start page, opens or discards them.
#pragma once
#include "document/recovery/Leftover.h"
#include "document/road/DocumentHandle.h"
#include <QImage>
#include <QObject>
#include <QPointer>
#include <functional>
#include <memory>
#include <vector>

namespace velara {

class fRecovery;
class Frame;

/// A picture that can be recovered, as it is shown.
struct Offer {
    std::shared_ptr<Leftover> leftover;
    QString name, path; // to be shown
    QString facts;      // when it was changed, and how many steps it has
    QString trouble;    // what can't be had; empty: nothing
    QImage thumbnail;   // null: not read yet, or it can't be read
    bool isRead = false;
};

class Recovery final : public QObject {
    Q_OBJECT
  public:
    static constexpr int kSide = 128; // of the thumbnails

    /// over: the window of the dialogs.
    Recovery(Frame& frame, QWidget* over);
    ~Recovery() override;
    /// Called with each document that was recovered, and with what is missing of it.
    std::function<void(const DocumentHandle& document, const QString& trouble)> opened;

    /// Looks for them in the background; shows the dialog if there are any.
    void look();
    /// The dialog, or a message if there is nothing to recover.
    void show();
    const std::vector<Offer>& offers() const { return offers_; }
    void recover(const std::vector<const Leftover*>& chosen);
    /// Asks first: it is for good.
    void discard(const std::vector<const Leftover*>& chosen);
    std::vector<const Leftover*> all() const;

  signals:
    void changed();

  private:
    void found(std::vector<Offer> offers);
    void readPictures();
    std::shared_ptr<Leftover> takeOut(const Leftover* leftover);

    Frame& frame_;
    QWidget* over_;
    std::vector<Offer> offers_;
    QPointer<fRecovery> dialog_;
    std::vector<std::shared_ptr<void>> requests_; // of the background
};

} // namespace velara
