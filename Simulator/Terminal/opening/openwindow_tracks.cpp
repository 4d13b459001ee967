// What the open window shows while a track is checked.
#include "openwindow.h"
#include "progresspage.h"
#include "trackcheck.h"

#include <QEventLoop>
#include <QFileInfo>
#include <QPointer>

bool OpenWindow::await(TrackCheck &check, const QString &track)
{
    // An ordinary track is read before anybody could see that.
    constexpr std::chrono::milliseconds unseen{200};
    QEventLoop loop;
    bool hasEnded = false;
    connect(&check, &TrackCheck::ended, &loop, [&loop, &hasEnded] {
        hasEnded = true;
        loop.quit();
    });
    if (check.endsWithin(unseen))
        return true;
    showProgress(tr("Reading %1").arg(QFileInfo(track).fileName()), Busy::ReadingTrack);
    connect(&check, &TrackCheck::progress, progress, &ProgressPage::setFraction);
    awaited = &check;
    const QPointer<OpenWindow> self = this;
    loop.exec();
    if (!self)
        return false;
    awaited = nullptr;
    // After it was given up, something else may be on its way already.
    const bool isOwnPage = busy == Busy::ReadingTrack;
    if (isOwnPage)
        busy = Busy::No;
    if (isOwnPage && hasEnded && check.isGivenUp() && isVisible())
        returnToFiles();
    return hasEnded && !check.isGivenUp();
}
