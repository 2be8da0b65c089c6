// LateNames: the names that have the size of the output in them, which is known when the picture is done. They are
// given out one by one, so that no two pictures get the same.
#pragma once
#include "batch/many/Plan.h"
#include "batch/many/messages.h"
#include <map>

namespace velara {

/// The output of a picture, given what the coordinator has answered.
QString lateOutput(const ManyOrder& order, const Plan& plan, const Told& named, const WorkOrder& answer);
/// Why it isn't written.
QString lateRefusal(const Plan& plan, const QString& output, const WorkOrder& answer);

class LateNames {
  public:
    LateNames(const ManyOrder& order, const Plan& plan) : order_(order), plan_(plan) {}

    /// What becomes of the picture that was told as Named: Write, Leave or Refuse. output becomes its name.
    WorkOrder answer(const Told& named, QString& output);

  private:
    bool isTaken(const QString& output) const;

    const ManyOrder& order_;
    const Plan& plan_;
    std::map<QString, int> taken_; // the picture that has the name
};

} // namespace velara
