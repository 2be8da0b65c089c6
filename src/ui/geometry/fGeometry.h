// fGeometry: what the dialogs that make or reshape a picture have in common: a grid of controls, a preview made by the
// very command on a small copy, OK and Cancel. A dialog changes nothing itself; after OK the frame runs its job.
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
    /// What to do after OK.
    virtual Job job() const = 0;

  protected:
    /// OK and Cancel below everything else. The last thing that a constructor adds.
    void addButtons(const QString& okName, const QString& cancelName, const QString& okText = {},
                    const QString& cancelText = {});
    /// False keeps the dialog open.
    virtual bool valid() const { return true; }
    void accept() override;
    /// "Minimum size: 2 x 2" when either is less; no picture has more than 256 megapixels.
    bool sizeAllowed(int width, int height) const;
    /// The job done on a copy of the picture.
    static Bits tried(const Bits& picture, const Job& job);

    QGridLayout& grid() { return *grid_; }
    Platform& platform() const { return platform_; }

  private:
    Platform& platform_;
    QGridLayout* grid_;
};

/// Two fields for a width and a height that may follow each other.
class fSizeFields : public QWidget {
    Q_OBJECT
  public:
    /// ratio is width / height of the picture; 0 takes it from the fields when the box is ticked.
    fSizeFields(const QString& proportionsCaption, int width, int height, double ratio, QWidget* parent = nullptr);
    int widthValue() const { return width_->text().toInt(); }
    int heightValue() const { return height_->text().toInt(); }
    /// Writes both; neither follows the other.
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
