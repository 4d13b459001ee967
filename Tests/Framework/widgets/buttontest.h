#pragma once

#include "testbase.h"
#include "testimages.h"

#include "Framework/orvikbutton.h"

#include <QScopedPointer>
#include <QSignalSpy>

/// Base of the tests of a button: each test function gets a visible one, with an image for off and one for on.
class ButtonTest : public TestBase {
    Q_OBJECT

protected Q_SLOTS:
    void init();
    void cleanup();

protected:
    static constexpr QSize buttonSize{100, 60};
    static constexpr QPoint inside{50, 30};

    QColor colorAt(const QPoint &place) const { return button->grab().toImage().pixelColor(place); }

    QScopedPointer<TestImages> files;
    QScopedPointer<QWidget> window;
    OrvikButton *button = nullptr;
    QScopedPointer<QSignalSpy> released;
};
