#pragma once

#include <QElapsedTimer>
#include <QEvent>
#include <QGraphicsView>
#include <QList>
#include <QPointer>

class DataBroker;
class UiGWidget;
class UiPluginInterface;

/// The guidance page: a strip over the map in which the plug-ins' widgets stand side by side. It greys itself out
/// while one of them has a popup open. On a keyboard Enter is a finger on the first of them, as long as it is held.
class GuidancePage : public QGraphicsView {
    Q_OBJECT

public:
    explicit GuidancePage(QWidget *parent = nullptr);
    ~GuidancePage() override;

    /// The page's widgets come from these plug-ins (not owned; call clear() before they go).
    void setPlugins(const QList<UiPluginInterface *> &plugins, DataBroker *broker);
    /// Builds the page again, as a host does when it shows it; widgets look at the published groups only when they are
    /// made. While a popup is open this waits until it has closed.
    void rebuild();
    /// Has the plug-ins delete every widget of the page; a popup of theirs counts as closed.
    void clear();
    QSize sizeHint() const override;

Q_SIGNALS:
    /// The page was built and may need another size.
    void rebuilt();
    /// A finger comes down on a plug-in's widget of that name.
    void touched(const QString &widgetName);
    /// A finger was on a plug-in's widget of that name, too shortly for a long touch, and nothing opened.
    void touchedShortly(const QString &widgetName);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void drawForeground(QPainter *painter, const QRectF &area) override;

private:
    struct Place {
        UiPluginInterface *plugin;
        QPointer<UiGWidget> widget;
        QString name;
    };

    void addWidgets(UiPluginInterface *plugin);
    /// Name of the widget at a point of the page; empty where there is none.
    QString nameAt(const QPoint &point) const;
    /// Puts a finger on the first widget, or takes it off.
    void sendFinger(QEvent::Type type);
    void setPopupActive(bool active);
    void forgetOrphanedPopup();

    QList<UiPluginInterface *> plugins;
    DataBroker *broker = nullptr;
    QList<Place> places;
    QSizeF extent;
    QPointer<UiGWidget> popupOwner;
    bool isPopupActive = false;
    bool isRebuildDue = false;
    QString touchedName;
    QElapsedTimer touchTime;
    bool isHeldByKey = false;
};
