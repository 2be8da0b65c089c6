// fOverlay: lays one open picture over another. Shows what OK will make of the picture while it is set. Not modal:
// pictures may be changed, opened and closed meanwhile; what it shows and offers follows them.
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

    /// Goes over another document from now on.
    void setBelow(const DocumentHandle& below);

    void accept() override;

  private:
    /// What is shown of an open document, as far as it can change.
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
