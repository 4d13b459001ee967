#pragma once

#include "openwindow.h"
#include "terminaltest.h"
#include "terminalwindow.h"

#include <QAbstractButton>

#include <algorithm>

/// For tests of the ways in which a whole terminal opens files through its open window.
class FileOpeningTest : public TerminalTest {
protected:
    /// As an operator does who changes nothing.
    void openByTouch(const QString &path)
    {
        Q_EMIT terminal().window()->dropped({path}, {});
        QTRY_VERIFY(button("openAccept") != nullptr);
        accept();
        QTRY_VERIFY(!terminal().openWindow()->isVisible());
    }
    /// Accepts the units assumed for unknown ones, and has maps of fields far away closed.
    void accept()
    {
        button("openAccept")->click();
        while (button("choice0") != nullptr)
            button("choice0")->click();
    }
    void openByTouch(const char *fixture) { openByTouch(TerminalHost::fixture(QLatin1String(fixture))); }
    QAbstractButton *button(const char *name)
    {
        const QList<QAbstractButton *> all = terminal().window()->findChildren<QAbstractButton *>(QLatin1String(name));
        const auto seen = std::find_if(all.begin(), all.end(), [](QAbstractButton *any) { return any->isVisible(); });
        return seen == all.end() ? nullptr : *seen;
    }
};
