#pragma once

#include "rxmapwidgetdialog01.h"

#include <QApplication>
#include <QPointer>
#include <QScopeGuard>
#include <QTimer>

#include <functional>

/// The settings dialog that is open; null when there is none.
inline RxMapWidgetDialog01 *openDialog()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *dialog = qobject_cast<RxMapWidgetDialog01 *>(widget))
            return dialog;
    }
    return nullptr;
}

/// Acts inside the modal loop of the dialog that opens while this object lives, and always closes that dialog, so that
/// a test that fails in the loop still ends.
class DialogWatch {
public:
    explicit DialogWatch(std::function<void(RxMapWidgetDialog01 *)> action = nullptr)
    {
        QObject::connect(&timer, &QTimer::timeout, &timer, [this, action] {
            QPointer<RxMapWidgetDialog01> dialog = openDialog();
            if (dialog.isNull())
                return;
            const auto close = qScopeGuard([&dialog] {
                if (dialog)
                    dialog->accept();
            });
            timer.stop();
            hasOpened = true;
            if (action)
                action(dialog);
        });
        timer.start(0);
    }

    bool hasOpened = false;

private:
    Q_DISABLE_COPY(DialogWatch)

    QTimer timer;
};
