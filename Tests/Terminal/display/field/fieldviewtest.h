#pragma once

#include "fieldview.h"
#include "testbase.h"

#include <QScopedPointer>

/// Base of the tests of the field view: each test function gets a visible view of 800 x 600 pixels that frames a field
/// of 400 m x 200 m.
class FieldViewTest : public TestBase {
    Q_OBJECT

protected Q_SLOTS:
    void init();
    void cleanup();

protected:
    QScopedPointer<FieldView> view;
};
