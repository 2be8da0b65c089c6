// FolderRun: velara-batch at work on many pictures, as a process of its own: what is asked of it, what it reports, and
// how it is held, let go on and ended.
#pragma once
#include <QFile>
#include <QProcess>
#include <QString>
#include <QStringList>

namespace velara {

/// What is done to which pictures.
struct FolderOrder {
    QStringList inputs;         // files and folders
    bool below = false;         // with what is below the folders
    QString recipe;             // its file
    QString into;               // the target folder
    bool overOriginals = false; // instead of it
    QString name;               // pattern, such as "{name}-web.{ext}"
    QString format;             // extension; empty: each keeps its own
    int quality = 0;            // 1 to 100; 0: the format's usual one
    QString existing;           // skip, replace, number or newer
};

/// The arguments of velara-batch.
QStringList argumentsOf(const FolderOrder& order);

/// What became of a picture.
struct PictureResult {
    QString input, output, reason;
    enum { Done, Skipped, Failed } kind = Failed;
};

class FolderRun final : public QObject {
    Q_OBJECT
  public:
    explicit FolderRun(QObject* parent = nullptr);
    /// Ends the work, without waiting for it: outputs are whole or not there.
    ~FolderRun() override;

    /// log: every line of the report, and what the program says, go to this file, too; empty: none. ended() comes even
    /// if the program can't be started.
    void start(const QString& program, const QStringList& arguments, const QString& log);
    bool isRunning() const { return process_->state() != QProcess::NotRunning; }
    bool isPaused() const { return paused_; }
    /// Stops all of its processes where they are, or lets them go on.
    void pause(bool paused);
    /// It ends after the pictures at hand; a second time: at once.
    void cancel();

  signals:
    void pictureDone(const PictureResult& result);
    /// said: what it has told, for the user.
    void ended(bool wasStarted, const QString& said);

  private:
    void readReport();
    void readErrors();
    void keep(const QByteArray& line);
    void signalAll(int signal) const;

    QProcess* process_;
    QFile log_;
    QString said_;
    bool paused_ = false, cancelled_ = false;
};

} // namespace velara
