#include "Framework/uigwidget.h"

#include <QGraphicsSceneMouseEvent>
#include <QPoint>

class UiGWidgetPrivate {
public:
    QString pluginName;
    QString widgetName;
    QPoint gridPosition;
    QDir imageDir;
    DataBroker *broker = nullptr;
    bool requiresDbGroups = false;
    bool isPopupActive = false;
};

UiGWidget::UiGWidget(QString pluginName, QString widgetName, int x, int y, QDir imageDir, QPointF position,
                     DataBroker *broker, bool requiresDbGroups)
    : d(new UiGWidgetPrivate)
{
    d->pluginName = pluginName;
    d->widgetName = widgetName;
    d->gridPosition = QPoint(x, y);
    d->imageDir = imageDir;
    d->broker = broker;
    d->requiresDbGroups = requiresDbGroups;
    setPos(position);
}

UiGWidget::~UiGWidget() = default;

QString UiGWidget::pluginName() const
{
    return d->pluginName;
}

QString UiGWidget::widgetName() const
{
    return d->widgetName;
}

QPoint UiGWidget::gridPosition() const
{
    return d->gridPosition;
}

bool UiGWidget::requiresDbGroups() const
{
    return d->requiresDbGroups;
}

bool UiGWidget::isPopupActive() const
{
    return d->isPopupActive;
}

void UiGWidget::pageShown() { }

void UiGWidget::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    // The widget is solid: a touch beside its controls does not reach what lies below.
    event->accept();
}

void UiGWidget::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    event->accept();
}

bool UiGWidget::checkForRequiredDbGroups(bool)
{
    return true;
}

void UiGWidget::userHasLongTouchedThisWidget() { }

void UiGWidget::popupIsActive(bool active)
{
    if (d->isPopupActive == active)
        return;
    d->isPopupActive = active;
    Q_EMIT popupActiveChanged(active);
}

DataBroker *UiGWidget::dataBroker() const
{
    return d->broker;
}

QDir UiGWidget::imageDir() const
{
    return d->imageDir;
}
