#pragma once

#include <QSize>

class QSettings;

/// Remembers how large the operator had the program's window last.
class ScreenMemory {
public:
    /// `settings` is not owned and outlives this.
    explicit ScreenMemory(QSettings &settings);

    /// Units of the screen. Never larger than `available`, what the desktop leaves of the screen; where nothing is
    /// remembered, ScreenFit::firstSize().
    QSize sizeOn(const QSize &available) const;
    void keep(const QSize &size);

private:
    QSettings &settings;
};
