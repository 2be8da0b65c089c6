// A window that drags the files named on its command line from where it is pressed: the other program of a drop.
#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>
#include <QWidget>

namespace {

class Source final : public QWidget {
  protected:
    void mousePressEvent(QMouseEvent*) override
    {
        QList<QUrl> urls;
        for (const QString& path : QCoreApplication::arguments().mid(1)) urls << QUrl::fromLocalFile(path);
        auto* data = new QMimeData;
        data->setUrls(urls);
        auto* drag = new QDrag(this);
        drag->setMimeData(data);
        drag->exec(Qt::CopyAction);
    }
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    Source source;
    source.setWindowTitle("drag source");
    source.resize(120, 120);
    source.show();
    return application.exec();
}
