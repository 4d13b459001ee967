#include "terminalruntest.h"

#include "commandline.h"
#include "files.h"
#include "streamcapture.h"
#include "terminalrun.h"

#include <QRegularExpression>

TerminalRunTest::Outcome TerminalRunTest::run(const QStringList &arguments)
{
    const Result<CommandLine> line = CommandLine::parse(QStringList(QStringLiteral("terminal-simulator")) + arguments);
    if (!line.isOk())
        return {QStringLiteral("not understood: ") + line.error, {}, {}, {}};
    Outcome outcome;
    const StreamCapture output(stdout);
    const StreamCapture errors(stderr);
    outcome.error = runTerminal(line.value);
    outcome.output = output.written();
    static const QRegularExpression feeds(QStringLiteral("^.*: product \\d+ \\(.*\\n"),
                                          QRegularExpression::MultilineOption);
    outcome.answer = QString(outcome.output).remove(feeds);
    outcome.errors = errors.written();
    return outcome;
}

QString TerminalRunTest::write(const QByteArray &content, const QString &name)
{
    return writeFile(folder.filePath(name), content);
}

QByteArray TerminalRunTest::square(const QByteArray &column, double rate, double lon, double lat)
{
    const auto corner = [&](double east, double north) {
        return QStringLiteral("[%1,%2]").arg(lon + east, 0, 'f', 6).arg(lat + north, 0, 'f', 6);
    };
    const QString ring =
        QStringList{corner(0, 0), corner(0.001, 0), corner(0.001, 0.001), corner(0, 0.001), corner(0, 0)}.join(
            QLatin1Char(','));
    return QStringLiteral(R"({"type":"FeatureCollection","features":[{"type":"Feature","properties":{"%1":%2},)"
                          R"("geometry":{"type":"Polygon","coordinates":[[%3]]}}]})")
        .arg(QString::fromLatin1(column), QString::number(rate), ring)
        .toUtf8();
}
