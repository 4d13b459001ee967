#pragma once

#include <QGraphicsView>
#include <QList>
#include <QPointer>

class DataBroker;
class UiGWidget;
class UiPluginInterface;

/// The guidance page: a strip over the map in which the plug-ins' widgets stand side by side. It greys itself out
/// while one of them has a popup open.
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

private:
    struct Place {
        UiPluginInterface *plugin;
        QPointer<UiGWidget> widget;
    };

    void addWidgets(UiPluginInterface *plugin);
    void setPopupActive(bool active);
    void forgetOrphanedPopup();

    QList<UiPluginInterface *> plugins;
    DataBroker *broker = nullptr;
    QList<Place> places;
    QSizeF extent;
    QPointer<UiGWidget> popupOwner;
    bool isPopupActive = false;
    bool isRebuildDue = false;
};
