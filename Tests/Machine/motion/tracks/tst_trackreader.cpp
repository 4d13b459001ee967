#include "allocationmeter.h"
#include "files.h"
#include "testbase.h"
#include "trackreader.h"

#include <QTemporaryDir>

#include <cmath>
#include <ctime>

namespace {

/// The machine's time zone while this object lives, written as POSIX does.
class TimeZone {
public:
    explicit TimeZone(const char *zone)
        : before(qgetenv("TZ"))
        , wasSet(qEnvironmentVariableIsSet("TZ"))
    {
        qputenv("TZ", zone);
        tzset();
    }
    ~TimeZone()
    {
        if (wasSet)
            qputenv("TZ", before);
        else
            qunsetenv("TZ");
        tzset();
    }
    Q_DISABLE_COPY(TimeZone)

private:
    const QByteArray before;
    const bool wasSet;
};

} // namespace

/// Recorded tracks, good and bad.
class TestTrackReader : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void sentencesOfOneTimeMakeOneEntry();
    void aTrackGoesOnOverMidnight();
    void rowsAreReadByTheirHead();
    void aTimeWithoutAnOffsetIsUtc_data();
    void aTimeWithoutAnOffsetIsUtc();
    void badLinesAreLeftOutAndCounted_data();
    void badLinesAreLeftOutAndCounted();
    void aLongTrackTakesNoMemory_data();
    void aLongTrackTakesNoMemory();
    void aCheckTellsHowFarItIsAndCanBeEnded_data();
    void aCheckTellsHowFarItIsAndCanBeEnded();
    void aTrackWithoutPositionsIsRefused_data();
    void aTrackWithoutPositionsIsRefused();
    void aTrackIsKnownByItsFirstLine_data();
    void aTrackIsKnownByItsFirstLine();

private:
    QString write(const QByteArray &content);
    static QByteArray withChecksum(const QByteArray &body);
    static QByteArray position(const char *time, const char *minutesNorth)
    {
        return QByteArray("$GPGGA,") + time + ",50" + minutesNorth + ",N,00900.000,E,1,08,1.0,100,M,47,M,,\n";
    }

    QTemporaryDir folder;
    const std::shared_ptr<const FieldPlane> plane = std::make_shared<FieldPlane>(QPointF(9.0, 50.0));
};

void TestTrackReader::init()
{
    TestBase::init();
    QVERIFY(folder.isValid());
}

QString TestTrackReader::write(const QByteArray &content)
{
    return writeFile(folder.filePath(QStringLiteral("track")), content);
}

QByteArray TestTrackReader::withChecksum(const QByteArray &body)
{
    char sum = 0;
    for (const char c : body)
        sum = char(sum ^ c);
    return "$" + body + "*" + QByteArray(1, sum).toHex().toUpper() + "\r\n";
}

void TestTrackReader::sentencesOfOneTimeMakeOneEntry()
{
    TrackReader reader(
        write(withChecksum("GPGGA,120000.00,5000.000,N,00900.000,E,1,08,1.0,100,M,47,M,,")
              + withChecksum("GPRMC,120000.00,A,5000.000,N,00900.000,E,5.0,90.0,010126,,") + "$GPGSV,3,1,11\n"
              + withChecksum("GNGGA,120001.00,5000.006,N,00900.000,E,1,08,1.0,100,M,47,M,,")
              + withChecksum("GNVTG,45.0,T,,M,10.0,N,18.5,K") + withChecksum("GPGGA,120002.00,,,,,0,00,,,M,,M,,")),
        plane);
    TrackPoint point;
    QVERIFY(reader.next(point));
    QCOMPARE(point.time, 43200.0);
    QVERIFY(std::hypot(point.place.x(), point.place.y()) < 1e-6);
    QVERIFY(std::fabs(*point.heading - 0.5 * std::acos(-1.0)) < 1e-12);
    QVERIFY(std::fabs(*point.speed - 5.0 * 1852.0 / 3600.0) < 1e-12);
    QVERIFY(reader.next(point));
    // A ten-thousandth of a degree of latitude at 50 degrees north: 11.1229 m on the ellipsoid.
    QVERIFY2(std::fabs(point.place.y() - 11.1229) < 0.0002, qPrintable(QString::number(point.place.y(), 'f', 4)));
    QVERIFY(std::fabs(*point.heading - 0.25 * std::acos(-1.0)) < 1e-12);
    QVERIFY(reader.next(point));
    QVERIFY(!point.hasFix);
    QVERIFY(!reader.next(point));
    QCOMPARE(reader.summary().badLines, 0);
    QCOMPARE(reader.summary().seconds, 2.0);
}

void TestTrackReader::aTrackGoesOnOverMidnight()
{
    TrackReader reader(write(position("235959", "00.000") + position("000001", "00.001")), plane);
    TrackPoint first;
    TrackPoint second;
    QVERIFY(reader.next(first) && reader.next(second));
    QCOMPARE(second.time - first.time, 2.0);
}

void TestTrackReader::rowsAreReadByTheirHead()
{
    TrackReader reader(write("speed,Time, y ,x\n2.5,2026-04-01T10:00:00.5Z,20,10\n,2026-04-01T10:00:01Z,,\n"), nullptr);
    TrackPoint point;
    QVERIFY(reader.next(point));
    QCOMPARE(point.place, QPointF(10, 20));
    QCOMPARE(*point.speed, 2.5);
    const double first = point.time;
    QVERIFY(reader.next(point));
    QVERIFY(!point.hasFix && !point.speed);
    QCOMPARE(point.time - first, 0.5);
}

void TestTrackReader::aTimeWithoutAnOffsetIsUtc_data()
{
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QByteArray>("last");
    QTest::newRow("beside one in UTC") << QByteArray("2026-04-01T10:00:00Z") << QByteArray("2026-04-01T11:00:00");
    QTest::newRow("beside one with an offset")
        << QByteArray("2026-04-01T12:00:00+02:00") << QByteArray("2026-04-01T11:00:00");
    QTest::newRow("as clocks go forward") << QByteArray("2026-03-29T01:59:00") << QByteArray("2026-03-29T02:59:00");
    QTest::newRow("as clocks go back") << QByteArray("2026-10-25T02:30:00") << QByteArray("2026-10-25T03:30:00");
}

void TestTrackReader::aTimeWithoutAnOffsetIsUtc()
{
    QFETCH(QByteArray, first);
    QFETCH(QByteArray, last);
    const TimeZone middleEurope("CET-1CEST,M3.5.0,M10.5.0/3");
    const QByteArray track = "time,x,y\n" + first + ",0,0\n" + last + ",1,0\n";
    const Result<TrackReader::Summary> summary = TrackReader::check(write(track), nullptr);
    QVERIFY2(summary.isOk(), qPrintable(summary.error));
    QCOMPARE(summary.value.seconds, 3600.0);
}

void TestTrackReader::badLinesAreLeftOutAndCounted_data()
{
    QTest::addColumn<QByteArray>("track");
    QTest::addColumn<int>("points");
    QTest::addColumn<QString>("complaint");
    const QByteArray first = position("120000", "00.000");
    const QByteArray next = position("120002", "00.002");
    const auto nmea = [&](const char *name, const QByteArray &bad, const char *complaint) {
        QTest::newRow(name) << first + bad + next << 2 << QStringLiteral("line 2: ") + QLatin1String(complaint);
    };
    nmea("no sentence", "hello\n", "is no NMEA 0183 sentence");
    nmea("no text", QByteArray("\x00\xff\x01\n", 4), "is no NMEA 0183 sentence");
    nmea("endless", QByteArray(5000, 'x') + "\n", "is longer than 1000 characters");
    nmea("wrong checksum", "$GPGGA,120001,5000.001,N,00900.000,E,1*00\n", "its checksum is wrong");
    nmea("no checksum after the star", "$GPGGA,120001,5000.001,N,00900.000,E,1*\n", "its checksum is wrong");
    nmea("no time", "$GPGGA,,5000.001,N,00900.000,E,1\n", "its time is none");
    nmea("no such time", "$GPGGA,126100,5000.001,N,00900.000,E,1\n", "its time is none");
    nmea("no such minutes", "$GPGGA,120001,5060.001,N,00900.000,E,1\n", "its position is none");
    nmea("no hemisphere", "$GPGGA,120001,5000.001,,00900.000,E,1\n", "its position is none");
    nmea("cut off", "$GPGGA,120001,5000.0\n", "is cut off");
    const auto csv = [](const char *name, const char *bad, const char *complaint) {
        QTest::newRow(name) << QByteArray("time,x,y\n0,0,0\n") + bad + "\n2,2,0\n"
                            << 2 << QStringLiteral("line 3: ") + QLatin1String(complaint);
    };
    csv("row without time", ",1,0", "its time is none");
    csv("row of text", "1,a,b", "its position is none");
    csv("half a position", "1,1,", "its position is none");
    csv("endless number", "1,inf,0", "its position is none");
    csv("back in time", "-1,1,0", "goes back in time");
    csv("a jump", "1,5000,0", "jumps by 5000 m");
    csv("a place far off", "1,1e300,0", "lies off the field's plane");
    csv("a time that no clock tells", "1e300,1,0", "its time is beyond the year 9999");
}

void TestTrackReader::badLinesAreLeftOutAndCounted()
{
    QFETCH(QByteArray, track);
    QFETCH(int, points);
    QFETCH(QString, complaint);
    const Result<TrackReader::Summary> summary = TrackReader::check(write(track), plane);
    QVERIFY2(summary.isOk(), qPrintable(summary.error));
    QCOMPARE(summary.value.points, qint64(points));
    QCOMPARE(summary.value.firstBad, complaint);
    QCOMPARE(summary.value.badLines, complaint.isEmpty() ? 0 : 1);
}

void TestTrackReader::aLongTrackTakesNoMemory_data()
{
    QTest::addColumn<bool>("isGood");
    QTest::newRow("good lines") << true;
    QTest::newRow("bad lines") << false;
}

void TestTrackReader::aLongTrackTakesNoMemory()
{
    QFETCH(bool, isGood);
    // RXMAP_TRACK_LINES makes it longer, such as 10000000.
    const int count = qMax(50000, qEnvironmentVariableIntValue("RXMAP_TRACK_LINES"));
    QFile file(folder.filePath(QStringLiteral("long")));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("time,x,y\n0,0,0\n") > 0);
    for (int line = 1; line < count; ++line)
        file.write(isGood ? QByteArray::number(line) + ',' + QByteArray::number(2 * line) + ",7\n" : "so what\n");
    file.close();
    TrackReader::check(file.fileName(), plane);
    const AllocationMeter meter;
    const Result<TrackReader::Summary> summary = TrackReader::check(file.fileName(), plane);
    QVERIFY2(meter.peak() < 64 * 1024, qPrintable(QString::number(meter.peak())));
    QCOMPARE(summary.value.points, qint64(isGood ? count : 1));
    QCOMPARE(summary.value.badLines, qint64(isGood ? 0 : count - 1));
}

void TestTrackReader::aCheckTellsHowFarItIsAndCanBeEnded_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("good lines") << QByteArray("1,2,3\n");
    QTest::newRow("bad lines") << QByteArray("so what\n");
}

void TestTrackReader::aCheckTellsHowFarItIsAndCanBeEnded()
{
    QFETCH(QByteArray, line);
    const QString path = write("time,x,y\n0,0,0\n" + line.repeated(9998));
    std::vector<double> told;
    QVERIFY(TrackReader::check(path, plane, [&told](double fraction) {
                told.push_back(fraction);
                return true;
            }).isOk());
    QVERIFY(told.size() == 10 && std::is_sorted(told.begin(), told.end()));
    QVERIFY(told.front() > 0.05 && told.front() < 0.15 && told.back() > 0.9 && told.back() <= 1.0);
    told.clear();
    const auto ended = TrackReader::check(path, plane, [&told](double fraction) {
        told.push_back(fraction);
        return told.size() < 3;
    });
    QCOMPARE(told.size(), size_t(3));
    QVERIFY2(ended.error.endsWith(QLatin1String("was not read to its end")), qPrintable(ended.error));
}

void TestTrackReader::aTrackWithoutPositionsIsRefused_data()
{
    QTest::addColumn<QByteArray>("track");
    QTest::addColumn<QString>("reason");
    QTest::newRow("empty") << QByteArray() << ": holds no position";
    QTest::newRow("no fix ever") << QByteArray("$GPGGA,120000,,,,,0\n$GPRMC,120001,V,,,,,,,\n")
                                 << ": holds no position";
    QTest::newRow("another table") << QByteArray("a,b\n1,2\n")
                                   << ": holds no position; line 1: is no head with \"time\"";
    QTest::newRow("places far off") << QByteArray("time,x,y\n0,1e300,0\n1,1e300,0\n")
                                    << ": holds no position; line 2: lies off the field's plane";
    QTest::newRow("no text") << QByteArray(3000, '\xff') << ": holds no position; line 1: is longer than 1000";
}

void TestTrackReader::aTrackWithoutPositionsIsRefused()
{
    QFETCH(QByteArray, track);
    QFETCH(QString, reason);
    const Result<TrackReader::Summary> summary = TrackReader::check(write(track), plane);
    QVERIFY(!summary.isOk());
    QVERIFY2(summary.error.contains(reason), qPrintable(summary.error));
    QVERIFY(!TrackReader::check(folder.filePath(QStringLiteral("none")), plane).isOk());
    const auto inDegrees = TrackReader::check(write("time,lon,lat\n0,9,50\n"), nullptr);
    QVERIFY2(inDegrees.error.endsWith(QLatin1String("no field is loaded to place them")), qPrintable(inDegrees.error));
}

void TestTrackReader::aTrackIsKnownByItsFirstLine_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isTrack");
    QTest::newRow("NMEA") << QByteArray("\r\n$GPGGA,120000,,,,,0\r\n") << true;
    QTest::newRow("a receiver's own sentence") << QByteArray("$PUBX,00,1\n") << true;
    QTest::newRow("table") << QByteArray("Time,lon,lat\n0,9,50\n") << true;
    QTest::newRow("table of something else") << QByteArray("time,price\n0,9\n") << false;
    QTest::newRow("shell") << QByteArray("$ make, and so on\n") << false;
    QTest::newRow("empty") << QByteArray() << false;
    QTest::newRow("no text") << QByteArray(3000, '\xff') << false;
}

void TestTrackReader::aTrackIsKnownByItsFirstLine()
{
    QFETCH(QByteArray, content);
    QTEST(TrackReader::mayRead(write(content)), "isTrack");
    QVERIFY(!TrackReader::mayRead(folder.path()));
    QVERIFY(!TrackReader::mayRead(folder.filePath(QStringLiteral("none"))));
}

RXMAP_TEST(TestTrackReader, None)
#include "tst_trackreader.moc"
