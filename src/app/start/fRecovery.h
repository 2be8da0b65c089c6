// fRecovery: "Recover Pictures": the pictures that can be recovered, each with its thumbnail, name and time, to be
// opened or discarded, one by one or all. What is left for later stays on the start page.
#pragma once
#include "app/start/Recovery.h"
#include <QDialog>

class QLabel;
class QPushButton;
class QVBoxLayout;

namespace velara {

class fRecovery final : public QDialog {
    Q_OBJECT
  public:
    /// Deletes itself when it closes.
    explicit fRecovery(QWidget* parent = nullptr);
    /// Shows these offers, but those put off; closes where there is none left.
    void follow(const std::vector<Offer>& offers);

  signals:
    void recovers(const std::vector<const Leftover*>& chosen);
    void discards(const std::vector<const Leftover*>& chosen);

  private:
    struct Row {
        const Leftover* leftover;
        QWidget* box;
        QLabel *picture, *trouble;
        bool isPutOff = false;
    };
    void addRow(const Offer& offer);
    void fill(Row& row, const Offer& offer);
    void putOff(const Leftover* leftover);
    void closeIfEmpty();
    std::vector<const Leftover*> left() const;
    void fit();

    QVBoxLayout* column_; // of the rows
    std::vector<Row> rows_;
};

} // namespace velara
