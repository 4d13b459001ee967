#pragma once

#include "Framework/uigwidget.h"

#include <QFont>

class OrvikButtonQgw;

/// The Rx options button on the guidance page: a long touch opens the "Rx Map Settings" dialog. The button is enabled
/// when a prescription map was loaded at construction, and stays as it is then.
class RxMapWidget : public UiGWidget {
    Q_OBJECT

public:
    /// See UiGWidget. `broker` outlives the widget; without one the button is disabled.
    RxMapWidget(QString pluginName, QString widgetName, int x, int y, QDir imageDir, QPointF position,
                DataBroker *broker);
    ~RxMapWidget() override;

    void pageShown() override;

public Q_SLOTS:
    /// Runs the dialog modally; returns when it is closed.
    void onLongTouch(int id);
    void onButtonReleased(int id);

private:
    QFont font;             ///< The terminal's. By design: set up though nothing draws with it.
    OrvikButtonQgw *button; ///< Child item.
};
