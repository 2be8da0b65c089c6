#include "app/help/fManual.h"
#include "app/help/manualPages.h"
#include "app/menus/fIcons.h"
#include "ui/widgets/inputs/named.h"
#include <QAction>
#include <QApplication>
#include <QFileInfo>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QScrollBar>
#include <QSplitter>
#include <QTextBrowser>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>

namespace velara {

namespace {

constexpr int kMargin = 14, kList = 240, kPage = 700; // around a page; widths

/// A page whose pictures are never wider than it.
class PageView final : public QTextBrowser {
  public:
    PageView()
    {
        document()->setDocumentMargin(kMargin);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        // Else the width would depend on the pictures, and they on it.
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
        later_.setSingleShot(true);
        connect(&later_, &QTimer::timeout, this, &PageView::fit);
    }

    QVariant loadResource(int type, const QUrl& name) override
    {
        const QVariant found = QTextBrowser::loadResource(type, name);
        if (type != QTextDocument::ImageResource) return found;
        QImage image = found.metaType().id() == QMetaType::QByteArray ? QImage::fromData(found.toByteArray())
                                                                      : found.value<QImage>();
        const int room = viewport()->width() - 2 * kMargin;
        if (image.width() > room) image = image.scaledToWidth(std::max(room, 1), Qt::SmoothTransformation);
        return image;
    }

  protected:
    void resizeEvent(QResizeEvent* event) override
    {
        QTextBrowser::resizeEvent(event);
        if (event->size().width() != event->oldSize().width()) later_.start(0);
    }

  private:
    /// Keeps the place on the page.
    void fit()
    {
        const double at = verticalScrollBar()->value() / std::max(1.0, double(verticalScrollBar()->maximum()));
        reload();
        verticalScrollBar()->setValue(int(at * verticalScrollBar()->maximum()));
    }

    QTimer later_;
};

} // namespace

fManual::fManual(QWidget* parent)
    : QWidget(parent, Qt::Window), browser_(named<QTextBrowser>(new PageView, "txtPage", tr("Page of the manual"))),
      pages_(named(new QListWidget, "lstPages", tr("Pages of the manual"))),
      search_(named(new QLineEdit, "txtSearch", tr("Words to look for in the manual")))
{
    setObjectName("fManual");
    setWindowTitle(tr("Manual"));
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);
    auto* bar = new QToolBar;
    QAction* back = step(*bar, "cmdBack", "go-previous", tr("Back"), QKeySequence(Qt::ALT | Qt::Key_Left));
    QAction* forward = step(*bar, "cmdForward", "go-next", tr("Forward"), QKeySequence(Qt::ALT | Qt::Key_Right));
    QAction* first = step(*bar, "cmdContents", "go-home", tr("Contents"), QKeySequence(Qt::ALT | Qt::Key_Home));
    QAction* find = step(*bar, "cmdFind", "edit-find", tr("Find"), QKeySequence(Qt::CTRL | Qt::Key_F));
    bar->addWidget(search_);
    QAction* end = step(*bar, "cmdClose", "window-close", tr("Close"), QKeySequence(Qt::Key_Escape));
    connect(end, &QAction::triggered, this, &QWidget::close);
    search_->setPlaceholderText(tr("Words to look for"));
    search_->setClearButtonEnabled(true);
    browser_->setOpenExternalLinks(false);
    pages_->setWordWrap(true);
    pages_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    pages_->setSpacing(1);
    connect(back, &QAction::triggered, browser_, &QTextBrowser::backward);
    connect(forward, &QAction::triggered, browser_, &QTextBrowser::forward);
    connect(browser_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(browser_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    connect(first, &QAction::triggered, this, [this] { open(kFirstManualPage); });
    connect(find, &QAction::triggered, search_, qOverload<>(&QWidget::setFocus));
    connect(search_, &QLineEdit::textChanged, this, &fManual::list);
    connect(search_, &QLineEdit::returnPressed, this, [this] {
        if (pages_->count() > 0) open(pages_->item(0)->data(Qt::UserRole).toString());
    });
    connect(pages_, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* item) {
        if (item && item->data(Qt::UserRole) != page_) open(item->data(Qt::UserRole).toString());
    });
    connect(browser_, &QTextBrowser::sourceChanged, this, &fManual::shown);
    back->setEnabled(false);
    forward->setEnabled(false);

    auto* sides = new QSplitter;
    sides->addWidget(pages_);
    sides->addWidget(browser_);
    sides->setStretchFactor(1, 1);
    sides->setSizes({kList, kPage});
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(bar);
    column->addWidget(sides, 1);
    list();
    browser_->setFocus();
    resize(QSize(kList + kPage, 680).boundedTo(screen()->availableSize()));
}

QAction* fManual::step(QToolBar& bar, const char* name, const char* icon, const QString& caption,
                       const QKeySequence& key)
{
    QAction* action = bar.addAction(themeIcon(icon), caption);
    action->setObjectName(name);
    action->setShortcut(key);
    action->setToolTip(QStringLiteral("%1 (%2)").arg(caption, key.toString(QKeySequence::NativeText)));
    return action;
}

void fManual::open(const QString& page)
{
    const QUrl address("qrc" + manualAddress(page));
    if (browser_->source() != address) browser_->setSource(address, QTextDocument::MarkdownResource);
    show();
    follow();
    raise();
    activateWindow();
}

void fManual::list()
{
    const QStringList words = search_->text().split(u' ', Qt::SkipEmptyParts);
    const QSignalBlocker quiet(pages_);
    pages_->clear();
    for (const ManualPage& each : manualPages()) {
        const QString text = manualText(each.name);
        if (!std::ranges::all_of(words, [&](const QString& word) { return text.contains(word, Qt::CaseInsensitive); }))
            continue;
        auto* item = new QListWidgetItem(each.title, pages_);
        item->setData(Qt::UserRole, each.name);
        if (each.name == page_) pages_->setCurrentItem(item);
    }
}

void fManual::shown(const QUrl& address)
{
    page_ = QFileInfo(address.path()).completeBaseName(); // the browser's own source is still the one before
    for (const ManualPage& each : manualPages())
        if (each.name == page_) setWindowTitle(QStringLiteral("%1: %2").arg(tr("Manual"), each.title));
    const QSignalBlocker quiet(pages_);
    pages_->setCurrentItem(nullptr);
    for (int i = 0; i < pages_->count(); ++i)
        if (pages_->item(i)->data(Qt::UserRole) == page_) pages_->setCurrentRow(i);
}

void fManual::follow()
{
    const QWidget* modal = QApplication::activeModalWidget();
    const QWidget* over = modal ? modal : parentWidget();
    QWindow* window = over ? over->window()->windowHandle() : nullptr;
    if (!windowHandle() || windowHandle()->transientParent() == window) return;
    windowHandle()->setTransientParent(window);
    if (followed_) followed_->disconnect(this);
    followed_ = window;
    // Not in the middle of the dialog's own end.
    if (window)
        connect(window, &QWindow::visibleChanged, this, [this] { QTimer::singleShot(0, this, &fManual::follow); });
}

bool fManual::event(QEvent* event)
{
    if (event->type() == QEvent::WindowBlocked) QTimer::singleShot(0, this, &fManual::follow);
    return QWidget::event(event);
}

} // namespace velara
