#pragma once

#include "displaykeys.h"
#include "product.h"
#include "theme.h"

#include <QStringList>
#include <QWidget>

class FieldView;
class GuidancePage;
class LegendPanel;
class MapOverlay;
class ProductSelector;
class StatusBar;
class TouchButton;

/// The terminal's display: the field view with the panels around and over it.
class TerminalWindow : public QWidget {
    Q_OBJECT

public:
    /// Pixels.
    static constexpr QSize displaySize{1280, 800};

    explicit TerminalWindow(const Products &products, QWidget *parent = nullptr);
    ~TerminalWindow() override;

    FieldView *fieldView() const { return view; }
    MapOverlay *overlay() const { return mapOverlay; }
    LegendPanel *legend() const { return legendPanel; }
    ProductSelector *productSelector() const { return selector; }
    void setProducts(const Products &products);
    StatusBar *statusBar() const { return status; }
    GuidancePage *guidancePage() const { return page; }

    /// The controls that drive the machine: while the operator drives, `panel` takes the place of the products and
    /// `strip` the place under the map. The window owns both. Null for both removes them again.
    void setDriving(QWidget *panel, QWidget *strip);
    /// Shows the controls that drive the machine.
    void openDriving();
    /// The part of the display where nothing lies over the map.
    QRect freeArea() const { return uncovered; }

    /// Sets how all that the terminal paints looks from now on. What plug-ins paint stays as it is.
    void setTheme(Theme::Kind kind);

    /// Says whether the display fills the screen.
    void showFullScreen(bool isFull);

    /// Where a page that covers the map lies: everything below the status bar.
    static QRect pageArea();

Q_SIGNALS:
    /// The operator wants to see the whole field again.
    void frameRequested();
    void themeChanged();
    /// The operator wants the display to fill the screen, or no longer.
    void fullScreenSwitched();
    /// The driving controls were shown or hidden.
    void drivingShown(bool isShown);
    void closed();
    /// Paths of files and folders of this computer that were dropped, and the texts of anything else that was dropped.
    void dropped(const QStringList &files, const QStringList &others);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void resizeEvent(QResizeEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    /// Marks the control that has the keyboard from the first Tab key on, until a finger is used.
    void markKeyboard(const QEvent &event);

private:
    void addZoomButtons();
    void addDriveButton();
    void addFullScreenButton();
    void addThemeButton();
    void showDriving(bool isShown);
    void arrange();

    FieldView *view;
    DisplayKeys keys;
    MapOverlay *mapOverlay;
    StatusBar *status;
    ProductSelector *selector;
    LegendPanel *legendPanel;
    GuidancePage *page;
    QList<QWidget *> zoomButtons;
    TouchButton *driveButton = nullptr;
    TouchButton *fullScreenButton = nullptr;
    TouchButton *themeButton = nullptr;
    QWidget *drivePanel = nullptr;
    QWidget *driveStrip = nullptr;
    QRect uncovered;
};
