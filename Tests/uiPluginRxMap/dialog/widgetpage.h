#pragma once

#include "dialoghost.h"
#include "rxmapwidget.h"

#include "Framework/orvikbuttonqgw.h"

#include <QScopedPointer>

/// An options button, made as the guidance page makes it; the caller owns it.
inline RxMapWidget *newWidget(const DialogHost &host, DataBroker *broker)
{
    return new RxMapWidget(QStringLiteral("UiPluginRxMap"), QStringLiteral("RxMapWidget"), 1, 2, host.images,
                           QPointF(30, 40), broker);
}

/// The image button of the widget; null when it has none.
inline OrvikButtonQgw *rxOptionsOf(const RxMapWidget &widget)
{
    for (QGraphicsItem *item : widget.childItems()) {
        auto *button = qobject_cast<OrvikButtonQgw *>(item->toGraphicsObject());
        if (button != nullptr && button->objectName() == QLatin1String("rxOptions"))
            return button;
    }
    return nullptr;
}

/// The options button of a host with the broker's maps.
struct WidgetPage {
    explicit WidgetPage(DialogHost &host)
        : owner(newWidget(host, &host.broker))
    {
    }

    const QScopedPointer<RxMapWidget> owner;
    RxMapWidget &widget = *owner;
    OrvikButtonQgw *button = rxOptionsOf(widget);
};
