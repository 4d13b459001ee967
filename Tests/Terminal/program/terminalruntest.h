#pragma once

#include "terminalhost.h"
#include "testbase.h"

#include <QTemporaryDir>

/// Base of the tests of a run of the terminal: command lines, run within this process, and files for them.
class TerminalRunTest : public TestBase {
    Q_OBJECT

protected:
    struct Outcome {
        QString error;
        QString output;
        /// The output without the lines that say what feeds which product.
        QString answer;
        QString errors;
    };

    static Outcome run(const QStringList &arguments);
    static QString zones() { return TerminalHost::fixture(QStringLiteral("three-zones.geojson")); }
    QString write(const QByteArray &content, const QString &name);
    /// A map of one square, a thousandth of a degree wide, with its south-west corner at that place.
    static QByteArray square(const QByteArray &column, double rate, double lon, double lat);

    QTemporaryDir folder;
};
