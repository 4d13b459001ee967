#include "productfile.h"
#include "terminalwindow.h"
#include "testbase.h"
#include "windowstack.h"

#include <QDialog>

#include <memory>
#include <vector>

/// Which window is on top, as pictures show it.
class TestWindowStack : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void picturesShowWhatLiesOnTop();
};

namespace {

template <typename Widget> std::unique_ptr<Widget> shown(const QColor &color, Qt::WindowFlags flags)
{
    auto window = std::make_unique<Widget>(nullptr, flags);
    window->setPalette(QPalette(color));
    window->setGeometry(300, 200, 200, 100);
    window->setModal(color == QColor(Qt::green));
    window->show();
    return window;
}

} // namespace

void TestWindowStack::picturesShowWhatLiesOnTop()
{
    TerminalWindow display(ProductFile::standard());
    display.move(0, 0);
    display.show();
    // Qt lists windows in no particular order; with this many others, a wrongly chosen window would show.
    std::vector<std::unique_ptr<QDialog>> others;
    for (int i = 0; i < 8; ++i)
        others.push_back(shown<QDialog>(Qt::red, Qt::Tool));
    const auto modal = shown<QDialog>(Qt::green, Qt::Dialog);
    for (int i = 0; i < 8; ++i)
        others.push_back(shown<QDialog>(Qt::red, Qt::Tool));
    const auto colorSeen = [&display] { return WindowStack::picture(&display).pixelColor(400, 250); };
    QCOMPARE(colorSeen(), QColor(Qt::green));
    {
        const auto popup = shown<QDialog>(Qt::blue, Qt::Popup);
        QCOMPARE(colorSeen(), QColor(Qt::blue));
    }
    QCOMPARE(colorSeen(), QColor(Qt::green));
}

RXMAP_TEST(TestWindowStack, Widgets)
#include "tst_windowstack.moc"
