#include "fieldviewtest.h"
#include "files.h"

#include <QFile>

#include <memory>
#include <vector>

namespace {

/// Resident memory of this process, megabytes.
double residentMegabytes()
{
    for (const QByteArray &line : readFile(QStringLiteral("/proc/self/status")).split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').front().toDouble() / 1024.0;
    }
    return 0.0;
}

/// Leaves much freed memory between a few blocks that are kept.
std::vector<std::unique_ptr<char[]>> scattered()
{
    constexpr size_t blocks = 4000;
    constexpr size_t block = 16384;
    std::vector<std::unique_ptr<char[]>> all;
    for (size_t i = 0; i < blocks; ++i)
        all.push_back(std::make_unique<char[]>(block));
    for (size_t i = 0; i < blocks; ++i) {
        if (i % 8 != 0)
            all[i].reset();
    }
    return all;
}

} // namespace

class TestRestingMemory : public FieldViewTest {
    Q_OBJECT

private Q_SLOTS:
    void givesBackWhatWasFreedOnceTheViewIsAtRest();
    void leavesThePictureAsItIs();
};

void TestRestingMemory::givesBackWhatWasFreedOnceTheViewIsAtRest()
{
#ifdef RXMAP_SANITIZED
    QSKIP("the sanitizer's allocator keeps what is freed");
#endif
    const double before = residentMegabytes();
    const auto kept = scattered();
    QVERIFY(residentMegabytes() > before + 40.0);
    view->repaint();
    QTRY_VERIFY(residentMegabytes() < before + 20.0);
}

void TestRestingMemory::leavesThePictureAsItIs()
{
    const QImage drawn = view->grab().toImage();
    constexpr int longerThanTheRestMs = 1300;
    QTest::qWait(longerThanTheRestMs);
    QCOMPARE(view->grab().toImage(), drawn);
}

RXMAP_TEST(TestRestingMemory, Widgets)
#include "tst_restingmemory.moc"
