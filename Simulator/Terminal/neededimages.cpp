#include "neededimages.h"

#include <QImageReader>

QStringList NeededImages::names()
{
    return {
        QStringLiteral("Cancel.png"),
        QStringLiteral("RxOptionsDisable_11_01.png"),
        QStringLiteral("RxOptionsLibrary_11_01.png"),
        QStringLiteral("RxOptionsPopup.png"),
        QStringLiteral("RxOptions_11_01.png"),
        QStringLiteral("doneButton.png"),
        QStringLiteral("keypadBackspace.png"),
        QStringLiteral("keypadEnter.png"),
        QStringLiteral("keypadKey.png"),
        QStringLiteral("lineEditBg.png"),
        QStringLiteral("productButtonOff.png"),
        QStringLiteral("productButtonOn.png"),
        QStringLiteral("xBoxBg.png"),
        QStringLiteral("xBoxOn.png"),
    };
}

QString NeededImages::problem(const QDir &folder)
{
    const QStringList needed = names();
    for (const QString &name : needed) {
        const QString path = folder.filePath(name);
        if (!QFileInfo::exists(path))
            return QStringLiteral("%1: this image is missing").arg(path);
        if (QImageReader(path).read().isNull())
            return QStringLiteral("%1: this image cannot be read").arg(path);
    }
    return {};
}
