#include "guidancepage.h"

#include "theme.h"

#include "Framework/uigwidget.h"
#include "Framework/uiplugininterface.h"

#include <QApplication>
#include <QGraphicsScene>
#include <QKeyEvent>
#include <QMouseEvent>

#include <utility>

namespace {

constexpr double gap = 8.0;
constexpr double greyedOut = 0.35;
constexpr qint64 longTouch = 800; // Milliseconds.

} // namespace

GuidancePage::GuidancePage(QWidget *parent)
    : QGraphicsView(parent)
{
    setScene(new QGraphicsScene(this));
    setObjectName(QStringLiteral("guidancePage"));
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    // Not by a style sheet, which would reach a plug-in's widgets.
    viewport()->setAutoFillBackground(false);
    setRenderHint(QPainter::SmoothPixmapTransform);
    setFocusPolicy(Qt::TabFocus);
    // A touch leaves the keyboard where it is.
    viewport()->setFocusPolicy(Qt::NoFocus);
    setAccessibleName(tr("Guidance page"));
}

GuidancePage::~GuidancePage()
{
    clear();
}

void GuidancePage::setPlugins(const QList<UiPluginInterface *> &newPlugins, DataBroker *newBroker)
{
    clear();
    plugins = newPlugins;
    broker = newBroker;
    rebuild();
}

void GuidancePage::rebuild()
{
    isRebuildDue = isPopupActive;
    if (isPopupActive)
        return;
    clear();
    for (UiPluginInterface *plugin : qAsConst(plugins))
        addWidgets(plugin);
    setSceneRect(QRectF(QPointF(), extent));
    Q_EMIT rebuilt();
}

void GuidancePage::addWidgets(UiPluginInterface *plugin)
{
    const QStringList names = plugin->getGuidancePageWidgetNames();
    for (const QString &name : names) {
        const double left = places.isEmpty() ? 0.0 : extent.width() + gap;
        const QPointer<UiGWidget> widget = plugin->createUiGWidget(name, places.size(), 0, QPointF(left, 0.0), broker);
        if (!widget)
            continue;
        scene()->addItem(widget);
        connect(widget.data(), &UiGWidget::popupActiveChanged, this, [this, widget](bool active) {
            popupOwner = widget;
            setPopupActive(active);
        });
        connect(widget.data(), &QObject::destroyed, this, &GuidancePage::forgetOrphanedPopup);
        widget->pageShown();
        places.append({plugin, widget, name});
        extent = QSizeF(left + widget->size().width(), qMax(extent.height(), widget->size().height()));
    }
}

void GuidancePage::clear()
{
    for (const Place &place : qAsConst(places)) {
        if (!place.widget)
            continue;
        place.widget->disconnect(this);
        scene()->removeItem(place.widget);
        place.plugin->deleteGWidget(place.widget);
    }
    places.clear();
    extent = QSizeF(0.0, 0.0);
    isPopupActive = false;
    isRebuildDue = false;
}

QSize GuidancePage::sizeHint() const
{
    return extent.toSize();
}

QString GuidancePage::nameAt(const QPoint &point) const
{
    for (const Place &place : places) {
        if (place.widget && place.widget->sceneBoundingRect().contains(mapToScene(point)))
            return place.name;
    }
    return {};
}

void GuidancePage::mousePressEvent(QMouseEvent *event)
{
    touchedName = nameAt(event->pos());
    touchTime.start();
    if (!touchedName.isEmpty())
        Q_EMIT touched(touchedName);
    QGraphicsView::mousePressEvent(event);
}

void GuidancePage::mouseReleaseEvent(QMouseEvent *event)
{
    QGraphicsView::mouseReleaseEvent(event);
    const QString name = std::exchange(touchedName, QString());
    if (!name.isEmpty() && name == nameAt(event->pos()) && touchTime.elapsed() < longTouch)
        Q_EMIT touchedShortly(name);
}

void GuidancePage::sendFinger(QEvent::Type type)
{
    if (places.isEmpty() || !places.first().widget)
        return;
    const QPoint at = mapFromScene(places.first().widget->sceneBoundingRect().center());
    const Qt::MouseButtons held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    QMouseEvent finger(type, at, viewport()->mapToGlobal(at), Qt::LeftButton, held, Qt::NoModifier);
    QApplication::sendEvent(viewport(), &finger);
}

void GuidancePage::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    event->setAccepted(isEnter);
    if (!isEnter || event->isAutoRepeat() || isHeldByKey)
        return;
    isHeldByKey = true;
    sendFinger(QEvent::MouseButtonPress);
}

void GuidancePage::keyReleaseEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    event->setAccepted(isEnter);
    if (!isEnter || event->isAutoRepeat() || !std::exchange(isHeldByKey, false))
        return;
    sendFinger(QEvent::MouseButtonRelease);
}

void GuidancePage::drawForeground(QPainter *painter, const QRectF &)
{
    if (hasFocus() && !places.isEmpty() && places.first().widget)
        Theme::drawFocus(*painter, places.first().widget->sceneBoundingRect(), false);
}

void GuidancePage::forgetOrphanedPopup()
{
    // The widget that would have said that the popup has closed is gone.
    if (isPopupActive && !popupOwner)
        setPopupActive(false);
}

void GuidancePage::setPopupActive(bool active)
{
    isPopupActive = active;
    // The touch that opened it was not a short one, and the popup may get its lift.
    touchedName.clear();
    isHeldByKey = false;
    for (const Place &place : qAsConst(places)) {
        if (place.widget)
            place.widget->setOpacity(active ? greyedOut : 1.0);
    }
    if (active)
        return;
    // The finger that opened the popup was lifted over it: nothing may hold on to the page's touches afterwards.
    if (scene()->mouseGrabberItem() != nullptr)
        scene()->mouseGrabberItem()->ungrabMouse();
    // Later: the widget whose popup has closed is still on the stack.
    if (isRebuildDue)
        QMetaObject::invokeMethod(this, &GuidancePage::rebuild, Qt::QueuedConnection);
}
