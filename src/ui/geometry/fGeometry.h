// fGeometry: the common part of the dialogs that make or reshape a picture: a grid of controls, a preview made by the
// command itself on a small copy, OK and Cancel. A dialog changes nothing itself; after OK the frame runs its job.
#pragma once
#include "document/Document.h"
#include "document/road/Change.h"
#include "engine/cBitFilter.h"
#include "ui/widgets/inputs/named.h"
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGridLayout>
#include <QLineEdit>
#include <functional>

namespace velara {

class Platform;
class fPicture;

class fGeometry : public QDialog {
    Q_OBJECT
  public:
    static constexpr QSize kPreview{200, 160};

    fGeometry(const QString& name, const QString& title, Platform& platform, QWidget* parent);
    /// The job to run after OK.
    virtual Job job() const = 0;
    /// What velara-batch would take for it; empty where that can't be said.
    virtual QString words() const { return {}; }

  protected:
    /// Adds OK and Cancel below everything else; to be called last by a constructor.
    void addButtons(const QString& okName, const QString& cancelName, const QString& okText = {},
                    const QString& cancelText = {});
    /// False keeps the dialog open.
    virtual bool valid() const { return true; }
    void accept() override;
    /// Shows "Minimum size: 2 x 2" when either is less; no picture has more than 256 megapixels.
    bool sizeAllowed(int width, int height) const;
    /// The result of the job on a copy of the picture.
    static Bits tried(const Bits& picture, const Job& job);

    QGridLayout& grid() { return *grid_; }
    Platform& platform() const { return platform_; }

  private:
    Platform& platform_;
    QGridLayout* grid_;
};

/// Fields for width and height that can be linked.
class fSizeFields : public QWidget {
    Q_OBJECT
  public:
    /// ratio is width / height of the picture; 0 takes it from the fields when the box is ticked.
    fSizeFields(const QString& proportionsCaption, int width, int height, double ratio, QWidget* parent = nullptr);
    int widthValue() const { return width_->text().toInt(); }
    int heightValue() const { return height_->text().toInt(); }
    /// Writes both, without linking.
    void set(int width, int height);

  signals:
    void changed();

  private:
    void edited(QLineEdit* field);

    QLineEdit *width_, *height_;
    QCheckBox* keep_;
    double ratio_;
    bool guard_ = false;
};

} // namespace velara
