#include "terminalwindow.h"

#include "fieldview.h"
#include "guidancepage.h"
#include "legendpanel.h"
#include "mapoverlay.h"
#include "productselector.h"
#include "statusbar.h"
#include "symbols.h"
#include "theme.h"
#include "touchbutton.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QUrl>

namespace {

constexpr int statusHeight = Theme::touchTarget;
constexpr int selectorWidth = 212;
constexpr int longestDropText = 60;
const char placedProperty[] = "rxmapPlacedOnDisplay";

} // namespace

TerminalWindow::TerminalWindow(const Products &products, QWidget *parent)
    : QWidget(parent)
    , view(new FieldView(this))
    , keys(this, view)
    , mapOverlay(new MapOverlay(this))
    , status(new StatusBar(this))
    , selector(new ProductSelector(products, this))
    , legendPanel(new LegendPanel(this))
    , page(new GuidancePage(this))
{
    setWindowTitle(tr("Field terminal"));
    setObjectName(QStringLiteral("terminalWindow"));
    setFixedSize(displaySize);
    setAcceptDrops(true);
    addZoomButtons();
    addDriveButton();
    addFullScreenButton();
    addThemeButton();
    connect(view, &FieldView::cameraChanged, this, [this] { mapOverlay->setCamera(view->camera()); });
    connect(view, &FieldView::keyboardChanged, mapOverlay, &MapOverlay::setAimed);
    qApp->installEventFilter(this);
    connect(page, &GuidancePage::rebuilt, this, &TerminalWindow::arrange);
}

TerminalWindow::~TerminalWindow() = default;

void TerminalWindow::addZoomButtons()
{
    const auto add = [this](const QString &text, const char *name, const QString &spoken) {
        auto *button = new TouchButton(text, this);
        button->setObjectName(QLatin1String(name));
        button->setAccessibleName(spoken);
        zoomButtons.append(button);
        return button;
    };
    connect(add(QStringLiteral("+"), "zoomIn", tr("Nearer")), &TouchButton::clicked, view,
            [this] { view->zoom(FieldView::zoomStep); });
    connect(add(QStringLiteral("\u2212"), "zoomOut", tr("Farther")), &TouchButton::clicked, view,
            [this] { view->zoom(1.0 / FieldView::zoomStep); });
    connect(add(tr("Field"), "showField", tr("The whole field")), &TouchButton::clicked, this,
            &TerminalWindow::frameRequested);
}

void TerminalWindow::addDriveButton()
{
    constexpr int driveWidth = 112;
    driveButton = new TouchButton(tr("Drive"), this);
    driveButton->setObjectName(QStringLiteral("drive"));
    driveButton->setCheckable(true);
    driveButton->setFixedWidth(driveWidth);
    driveButton->hide();
    status->addButton(driveButton);
    connect(driveButton, &TouchButton::toggled, this, &TerminalWindow::showDriving);
}

void TerminalWindow::addFullScreenButton()
{
    fullScreenButton = new TouchButton(QString(), this);
    fullScreenButton->setObjectName(QStringLiteral("fullScreenButton"));
    status->addTool(fullScreenButton);
    connect(fullScreenButton, &TouchButton::clicked, this, &TerminalWindow::fullScreenSwitched);
    showFullScreen(false);
}

void TerminalWindow::showFullScreen(bool isFull)
{
    fullScreenButton->setText(isFull ? tr("Leave full screen") : tr("Full screen"));
    fullScreenButton->setSymbol(isFull ? Symbols::plainWindow() : Symbols::fullScreen());
}

void TerminalWindow::addThemeButton()
{
    themeButton = new TouchButton(QString(), this);
    themeButton->setObjectName(QStringLiteral("themeButton"));
    status->addTool(themeButton);
    connect(themeButton, &TouchButton::clicked, this,
            [this] { setTheme(Theme::inUse() == Theme::Kind::Day ? Theme::Kind::Night : Theme::Kind::Day); });
    setTheme(Theme::inUse());
}

void TerminalWindow::setTheme(Theme::Kind kind)
{
    Theme::use(kind);
    const bool isDay = kind == Theme::Kind::Day;
    themeButton->setText(isDay ? tr("Night") : tr("Day"));
    themeButton->setSymbol(isDay ? Symbols::moon() : Symbols::sun());
    // Reaches every widget of this window, each of which then repaints itself, and no window of a plug-in.
    setPalette(Theme::palette());
    Q_EMIT themeChanged();
}

void TerminalWindow::setDriving(QWidget *panel, QWidget *strip)
{
    driveButton->setChecked(false);
    delete drivePanel;
    delete driveStrip;
    drivePanel = panel;
    driveStrip = strip;
    for (QWidget *part : {panel, strip}) {
        if (part == nullptr)
            continue;
        part->setParent(this);
        part->hide();
    }
    driveButton->setVisible(panel != nullptr);
}

void TerminalWindow::openDriving()
{
    driveButton->setChecked(true);
}

void TerminalWindow::showDriving(bool isShown)
{
    selector->setVisible(!isShown);
    drivePanel->setVisible(isShown);
    driveStrip->setVisible(isShown);
    arrange();
    Q_EMIT drivingShown(isShown);
}

void TerminalWindow::setProducts(const Products &products)
{
    selector->setProducts(products);
    arrange();
}

QRect TerminalWindow::pageArea()
{
    return QRect(QPoint(), displaySize).adjusted(0, statusHeight, 0, 0);
}

void TerminalWindow::resizeEvent(QResizeEvent *)
{
    arrange();
}

void TerminalWindow::arrange()
{
    const QRect below = pageArea();
    status->setGeometry(0, 0, width(), statusHeight);
    view->setGeometry(below);
    mapOverlay->setGeometry(below);
    const QRect inner = below.adjusted(Theme::margin, Theme::margin, -Theme::margin, -Theme::margin);
    selector->setGeometry(inner.left(), inner.top(), selectorWidth, selector->heightWithin(inner.height()));
    legendPanel->resize(legendPanel->sizeHint());
    legendPanel->move(inner.right() + 1 - legendPanel->width(), inner.top());

    int bottom = inner.bottom() + 1;
    int right = inner.right() + 1;
    for (int i = zoomButtons.size() - 1; i >= 0; --i) {
        right -= Theme::touchTarget;
        zoomButtons.at(i)->setGeometry(right, bottom - Theme::touchTarget, Theme::touchTarget, Theme::touchTarget);
        right -= Theme::margin / 2;
    }
    bottom -= Theme::touchTarget + Theme::margin;
    page->resize(page->sizeHint());
    page->move(inner.right() + 1 - page->width(), bottom - page->height());
    page->setVisible(!page->sizeHint().isEmpty());

    uncovered = QRect(inner.left() + selectorWidth + Theme::margin, inner.top(), 0, inner.height());
    uncovered.setRight(legendPanel->x() - Theme::margin - 1);
    if (driveButton->isChecked()) {
        drivePanel->setGeometry(inner.left(), inner.top(), selectorWidth, inner.height());
        const int stripRight = qMin(right, page->isVisible() ? page->x() : right) - Theme::margin / 2;
        const int stripHeight = driveStrip->sizeHint().height();
        driveStrip->setGeometry(uncovered.left(), inner.bottom() + 1 - stripHeight, stripRight - uncovered.left(),
                                stripHeight);
        uncovered.setBottom(driveStrip->y() - Theme::margin - 1);
    }
    const QRectF onTheMap = uncovered.translated(0, -statusHeight);
    view->setFreeArea(onTheMap);
    mapOverlay->setFreeArea(onTheMap);
}

void TerminalWindow::keyPressEvent(QKeyEvent *event)
{
    event->setAccepted(keys.press(event->key()));
}

bool TerminalWindow::focusNextPrevChild(bool next)
{
    return keys.moveFocus(next);
}

void TerminalWindow::closeEvent(QCloseEvent *event)
{
    event->accept();
    Q_EMIT closed();
}

void TerminalWindow::dragEnterEvent(QDragEnterEvent *event)
{
    // A dialog of a plug-in keeps the terminal as it is. Anything else is taken, so that a refusal can be seen.
    if (QApplication::activeModalWidget() == nullptr)
        event->acceptProposedAction();
}

void TerminalWindow::dropEvent(QDropEvent *event)
{
    QStringList files;
    QStringList others;
    const QList<QUrl> urls = event->mimeData()->urls();
    for (const QUrl &url : urls) {
        if (url.isLocalFile())
            files.append(url.toLocalFile());
        else
            others.append(url.toDisplayString());
    }
    if (urls.isEmpty())
        others.append(event->mimeData()->text().left(longestDropText));
    event->acceptProposedAction();
    Q_EMIT dropped(files, others);
}

void TerminalWindow::markKeyboard(const QEvent &event)
{
    bool isKey = false;
    if (event.type() == QEvent::KeyPress) {
        const int key = static_cast<const QKeyEvent &>(event).key();
        isKey = key == Qt::Key_Tab || key == Qt::Key_Backtab;
    }
    const bool isTouch = event.type() == QEvent::MouseButtonPress || event.type() == QEvent::TouchBegin;
    if (!isKey && !isTouch)
        return;
    if (!Theme::showFocus(isKey))
        return;
    mapOverlay->update();
    page->viewport()->update();
    if (QWidget *control = QApplication::focusWidget())
        control->update();
}

bool TerminalWindow::eventFilter(QObject *watched, QEvent *event)
{
    markKeyboard(*event);
    // A dialog places itself on the display, which on a desktop is this window, wherever that is.
    auto *dialog = event->type() == QEvent::Show && !event->spontaneous() ? qobject_cast<QDialog *>(watched) : nullptr;
    if (dialog != nullptr && dialog->isWindow() && !dialog->property(placedProperty).toBool()) {
        dialog->setProperty(placedProperty, true);
        dialog->move(dialog->pos() + mapToGlobal(QPoint(0, 0)));
    }
    return QWidget::eventFilter(watched, event);
}
