#pragma once

#include "Framework/frameworkglobal.h"

#include <QDir>
#include <QGraphicsWidget>
#include <QPointF>
#include <QScopedPointer>
#include <QString>

class DataBroker;
class UiGWidgetPrivate;

/// A widget of the guidance page.
class FRAMEWORK_EXPORT UiGWidget : public QGraphicsWidget {
    Q_OBJECT

public:
    /// `pluginName` and `widgetName` identify the widget; `x` and `y` are its place in the page's grid, `position` its
    /// top left corner on the page in pixels; images are loaded from `imageDir`. `broker` is not owned.
    /// `requiresDbGroups`: the page hides the widget while checkForRequiredDbGroups() finds groups missing.
    UiGWidget(QString pluginName, QString widgetName, int x, int y, QDir imageDir, QPointF position, DataBroker *broker,
              bool requiresDbGroups);
    ~UiGWidget() override;

    QString pluginName() const;
    QString widgetName() const;
    QPoint gridPosition() const;
    bool requiresDbGroups() const;
    /// True from popupIsActive(true) to popupIsActive(false).
    bool isPopupActive() const;

    /// Called by the page when it comes into view.
    virtual void pageShown();

    // The order of the virtual operations is part of the binary interface; that is why the access changes.
protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;

public:
    /// Whether the broker holds the groups that the widget needs; `report` writes a debug line for each that is
    /// missing.
    virtual bool checkForRequiredDbGroups(bool report);
    /// Called by the page after a long touch on the widget outside of its controls.
    virtual void userHasLongTouchedThisWidget();

Q_SIGNALS:
    /// The page greys itself out while `active`.
    void popupActiveChanged(bool active);

protected:
    /// Tells the page that a popup of this widget opens or has closed.
    void popupIsActive(bool active);
    DataBroker *dataBroker() const;
    QDir imageDir() const;

private:
    QScopedPointer<UiGWidgetPrivate> d;
};
