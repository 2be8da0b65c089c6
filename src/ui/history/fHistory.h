// fHistory: the box "History": what was done to the active document, with small pictures. A click goes to that state,
// as far as the undo series reaches; the menu of a step makes commands and recipes of what follows.
#pragma once
#include "document/road/DocumentHandle.h"
#include <QWidget>
#include <vector>

class QListWidget;
class QListWidgetItem;

namespace velara {

class Frame;
struct StepNote;

class fHistory final : public QWidget {
    Q_OBJECT
  public:
    fHistory(Frame& frame, QWidget* parent);

    /// Shows the steps of the active document. To be called after whatever may have changed them; costs nothing while
    /// they are the same, and while the box is hidden.
    void follow();

  signals:
    // What the user wants of the steps from this index on up to the present state (UndoStore::listed); 0: of all.
    void copyWanted(const DocumentHandle& document, int from);
    void saveWanted(const DocumentHandle& document, int from);
    void runOnOthersWanted(const DocumentHandle& document, int from);

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    struct Row {
        int number;
        bool stands, isShown, isRedo;
        friend bool operator==(const Row&, const Row&) = default;
    };
    void fill(const std::vector<StepNote>& notes, const std::vector<Row>& now);
    void describe(QListWidgetItem& item, const StepNote& note, const Row& row) const;
    void goTo(int row);
    void showMenu(QPoint at);

    Frame& frame_;
    DocumentHandle document_;
    std::vector<Row> rows_; // those listed
    int shown_ = -1;        // the one of the present state
    QListWidget* lstHistory_;
};

} // namespace velara
