// fAboutFacts: the text of About below the picture: version, licence, libraries.
#pragma once
#include <QFrame>

namespace velara {

class fAboutFacts final : public QFrame {
    Q_OBJECT
  public:
    explicit fAboutFacts(QWidget* parent);

  signals:
    void closed(); // by its button
};

} // namespace velara
