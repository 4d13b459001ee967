#pragma once

#include <QPointF>
#include <QPointer>
#include <QRect>
#include <QString>
#include <QWindow>

class QObject;

/// What a finger or an eye at the display can do with a control or learn of it; a control is a widget or an item of the
/// guidance page. All on the user-interface thread; a null control gives empty answers.
class UiDriver {
public:
    /// The control of that object name in the topmost window that has one, visible ones first; null when there is none.
    static QObject *find(const QString &name);

    static QString text(const QObject *control);
    /// Index of the image shown; -1 for a control without images.
    static int image(const QObject *control);
    static bool isVisible(const QObject *control);
    static bool isEnabled(const QObject *control);
    /// A widget's place in its parent; a window's or page item's place on the display. Pixels.
    static QRect geometry(const QObject *control);

    /// Where a touch of the control's middle lands.
    struct Spot {
        QPointer<QWindow> window; ///< Null when the control cannot be touched.
        QPointF place;            ///< Pixels from the window's top left corner.
    };
    static Spot middle(const QObject *control);

    /// Puts a finger on the spot, or takes it off. The event is posted: it is delivered by the event loop, like one
    /// that the display sends, also to a modal dialog's.
    static void press(const Spot &spot);
    static void release(const Spot &spot);
    /// Whether keys that are typed now go to the control: it has the keyboard, or a popup of its own has.
    static bool hasKeyboard(const QObject *control);
    /// Types `text` and finishes with the return key. Posted like a touch.
    static void type(const QObject *control, const QString &text);
};
