// fFolderRun: the window "Run on a Folder": says what is done to which pictures, starts velara-batch on them, and shows
// how far it is. The editor goes on meanwhile.
#pragma once
#include "ui/many/FolderRun.h"
#include <QDialog>
#include <QElapsedTimer>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QProgressBar;
class QPushButton;
class QSpinBox;

namespace velara {

class Platform;

/// An entry of the list of recipes.
struct RecipeChoice {
    QString caption;
    std::function<std::optional<QString>()>
        file; // its file, made where needed; no value: the user thought better of it
};

class fFolderRun final : public QDialog {
    Q_OBJECT
  public:
    /// program: velara-batch; logFolder: for the files of what was done.
    fFolderRun(Platform& platform, QString program, QString logFolder, std::vector<RecipeChoice> recipes,
               QWidget* parent = nullptr);

    bool isRunning() const { return run_.isRunning(); }
    void addInput(const QString& path);

  signals:
    /// A picture that failed is to be shown.
    void openWanted(const QString& path);

  protected:
    void reject() override;

  private:
    QWidget* makeOrder();
    void makeInputs(QGridLayout& grid);
    void makeTarget(QGridLayout& grid);
    QLayout* makeProgress();
    void chooseFile();
    void chooseFolder();
    void chooseTarget();
    void updateControls();
    bool mayOverwrite();
    std::optional<FolderOrder> order();
    void begin();
    void pictureDone(const PictureResult& result);
    void ended(bool wasStarted, const QString& said);
    void showProgress();

    Platform& platform_;
    const QString program_, logFolder_;
    const std::vector<RecipeChoice> recipes_;
    FolderRun run_;
    int total_ = 0, done_ = 0, skipped_ = 0, failed_ = 0;
    QElapsedTimer clock_; // since the start, or since the last pause
    qint64 worked_ = 0;   // milliseconds before that
    QString log_;
    bool closes_ = false; // once the work has ended

    QWidget* order_ = nullptr;
    QListWidget *lstInputs_ = nullptr, *lstFailures_ = nullptr;
    QCheckBox *chkBelow_ = nullptr, *chkOriginals_ = nullptr;
    QComboBox *cboRecipe_ = nullptr, *cboFormat_ = nullptr, *cboExisting_ = nullptr;
    QLineEdit *txtInto_ = nullptr, *txtName_ = nullptr;
    QSpinBox* spnQuality_ = nullptr;
    QProgressBar* bar_ = nullptr;
    QLabel *lblState_ = nullptr, *lblLog_ = nullptr;
    QPushButton *cmdRun_ = nullptr, *cmdPause_ = nullptr, *cmdCancel_ = nullptr, *cmdInto_ = nullptr,
                *cmdRemove_ = nullptr;
};

} // namespace velara
