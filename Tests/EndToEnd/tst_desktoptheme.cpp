#include "simulatorrun.h"
#include "testbase.h"
#include "theme.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtEndian>

/// What an operator sees who starts the program on a desktop with dark or light colours.
class TestDesktopTheme : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void theDesktopChoosesTheThemeAtTheStart_data();
    void theDesktopChoosesTheThemeAtTheStart();

private:
    /// A pixel of a display that keeps its picture in a file (in the format of X window dumps).
    static QColor pixel(const QString &picture, const QPoint &place);
};

QColor TestDesktopTheme::pixel(const QString &picture, const QPoint &place)
{
    // Values of the header: its own size, the bytes of a line, the number of colours after it.
    enum Field { HeaderSize = 0, LineSize = 12, ColorCount = 19, FieldCount = 25 };
    constexpr int colorSize = 12;
    QFile file(picture);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray header = file.read(FieldCount * 4);
    if (header.size() < FieldCount * 4)
        return {};
    const auto field = [&header](Field which) { return qFromBigEndian<quint32>(header.constData() + 4 * which); };
    file.seek(qint64(field(HeaderSize)) + colorSize * field(ColorCount) + place.y() * qint64(field(LineSize))
              + 4 * place.x());
    const QByteArray bytes = file.read(4);
    return bytes.size() == 4 ? QColor(quint8(bytes[2]), quint8(bytes[1]), quint8(bytes[0])) : QColor();
}

void TestDesktopTheme::theDesktopChoosesTheThemeAtTheStart_data()
{
    QTest::addColumn<bool>("isDark");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<bool>("isNight");
    QTest::newRow("light desktop") << false << QStringList{} << false;
    QTest::newRow("dark desktop") << true << QStringList{} << true;
    QTest::newRow("dark desktop, day wanted") << true << QStringList{"--theme", "day"} << false;
    QTest::newRow("light desktop, night wanted") << false << QStringList{"--theme", "night"} << true;
}

void TestDesktopTheme::theDesktopChoosesTheThemeAtTheStart()
{
    QFETCH(bool, isDark);
    QFETCH(QStringList, arguments);
    QFETCH(bool, isNight);
    const QTemporaryDir folder;
    QProcess display;
    display.start(QStringLiteral("Xvfb"),
                  {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
                   QStringLiteral("1280x800x24"), QStringLiteral("-fbdir"), folder.path()});
    QVERIFY(display.waitForReadyRead());
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), QLatin1Char(':') + QString::fromLatin1(display.readLine().trimmed()));
    const QStringList settings =
        isDark ? darkDesktop(folder.path()) : QStringList(QStringLiteral("XDG_CONFIG_HOME=") + folder.path());
    for (const QString &setting : settings)
        environment.insert(setting.section(QLatin1Char('='), 0, 0), setting.section(QLatin1Char('='), 1));
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(simulatorProgram(), arguments);
    // On the status bar, between its texts.
    const QPoint place(700, 10);
    const QColor panel = Theme::colors(isNight ? Theme::Kind::Night : Theme::Kind::Day).panel;
    const QString picture = folder.filePath(QStringLiteral("Xvfb_screen0"));
    QTRY_COMPARE_WITH_TIMEOUT(pixel(picture, place).name(), QColor(panel.rgb()).name(), 60000);
    // The program keeps running, since there is no operator to close it.
    program.kill();
    program.waitForFinished();
    display.terminate();
    display.waitForFinished();
}

RXMAP_TEST(TestDesktopTheme, None)
#include "tst_desktoptheme.moc"
