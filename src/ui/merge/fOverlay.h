// fOverlay: lays one open picture over another. Previews the result of OK while settings change. Not modal: pictures
// may be changed, opened and closed meanwhile; the dialog follows them.
#pragma once
#include "document/merging.h"
#include "document/road/Change.h"
#include "document/road/DocumentHandle.h"
#include <QDialog>
#include <QTimer>
#include <vector>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QPushButton;
class QSlider;
class QSpinBox;

namespace velara {

class Frame;
class fColorButton;
class fPicture;

class fOverlay final : public QDialog {
    Q_OBJECT
  public:
    /// Over this document. Deletes itself when it is closed.
    fOverlay(Frame& frame, const DocumentHandle& below, QWidget* parent = nullptr);

    /// Changes to another document below.
    void setBelow(const DocumentHandle& below);

    void accept() override;

  private:
    /// The state of an open document that affects this dialog.
    struct Seen {
        DocumentHandle document;
        QString tag;
        int commits;
        Region working;
        friend bool operator==(const Seen&, const Seen&) = default;
    };
    struct Offset {
        QSlider* bar = nullptr;
        QSpinBox* value = nullptr;
    };

    QWidget* makePreview();
    QWidget* makeControls();
    Offset makeOffset(QGridLayout* grid, int row, const QString& caption, const char* name);
    std::vector<Seen> look() const;
    void follow();
    void ended(const Outcome& outcome);
    void fillList();
    void setRanges();
    void changed();
    void showPreview();
    DocumentHandle chosen() const;
    Merging merging() const;
    QString words() const;

    Frame& frame_;
    DocumentHandle below_;
    std::vector<Seen> seen_;
    std::vector<DocumentHandle> offered_; // the entries of cbOverlay_
    QTimer watch_, previewTimer_;
    bool working_ = false;

    fPicture* iSrc_ = nullptr;
    QComboBox* cbOverlay_ = nullptr;
    QSlider* sbTransparency_ = nullptr;
    Offset x_, y_;
    QCheckBox *chkTiled_ = nullptr, *chkMaskColor_ = nullptr, *chkCreateNew_ = nullptr;
    fColorButton* lblMaskColor_ = nullptr;
    QLabel* state_ = nullptr;
    QPushButton* cmdOK_ = nullptr;
};

} // namespace velara
