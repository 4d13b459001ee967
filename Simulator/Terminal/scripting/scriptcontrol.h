#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

/// A control of the display as a script sees it. It lives on the script's thread and asks the user-interface thread for
/// everything. A control that has gone is looked up again by its name.
class ScriptControl : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString text READ text)
    /// Index of the image shown; -1 for a control without images.
    Q_PROPERTY(int image READ image)
    Q_PROPERTY(bool visible READ isVisible)
    Q_PROPERTY(bool enabled READ isEnabled)
    /// Pixels; see UiDriver::geometry().
    Q_PROPERTY(int x READ x)
    Q_PROPERTY(int y READ y)
    Q_PROPERTY(int width READ width)
    Q_PROPERTY(int height READ height)

public:
    /// `gui` is any object of the user-interface thread that outlives the script.
    ScriptControl(const QString &name, QObject *gui, QObject *parent = nullptr);

    QString text() const;
    int image() const;
    bool isVisible() const;
    bool isEnabled() const;
    int x() const;
    int y() const;
    int width() const;
    int height() const;

    /// Touches the middle of the control. Throws when it is not on the display.
    Q_INVOKABLE void touch();
    /// The same, held until the control has taken it as a long touch.
    Q_INVOKABLE void longTouch();
    /// Touches a field, types `text` in place of what it holds, and finishes. A field that cannot be touched stays as
    /// it is.
    Q_INVOKABLE void enter(const QString &text);

Q_SIGNALS:
    /// The display may look different now.
    void acted();

private:
    template <typename Function> auto ask(Function function) const;
    /// False, and the script's error set, when the control is not on the display.
    bool tap();
    void settle() const;

    QString name;
    QObject *gui;
    mutable QPointer<QObject> control; ///< Used on the user-interface thread only.
};
