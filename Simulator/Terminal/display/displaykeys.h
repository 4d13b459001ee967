#pragma once

#include <QList>

class FieldView;
class QWidget;

/// Works the display by keyboard: Tab goes from control to control in reading order, arrows move the map, plus and
/// minus zoom, Enter touches the map's middle while the map has the keyboard. Buttons are touched by Enter and Space
/// themselves.
class DisplayKeys {
public:
    /// Neither is owned; both outlive the keys. `view` is a child of `display`.
    DisplayKeys(QWidget *display, FieldView *view);

    /// Takes a key that no control has taken; false when it means nothing here.
    bool press(int key);
    /// Gives the keyboard to the next control that can be reached, or to the one before; false where there is none.
    bool moveFocus(bool forward);

private:
    /// Controls that the keyboard can reach now, in reading order: what is hidden or covered by a page is not.
    QList<QWidget *> controls() const;
    bool isReachable(const QWidget *control) const;
    /// The child of the display that holds the control.
    const QWidget *pieceOf(const QWidget *control) const;

    QWidget *display;
    FieldView *view;
};
