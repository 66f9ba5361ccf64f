#include "desktop/desktop_test.h"

#include <QImage>

namespace tarnwell::test {

namespace {

constexpr int kPanelHeight = 28;

/// A panel that gives programs a small window of the display each, for their icons.
std::unique_ptr<BackgroundProgram> startPanel(const Display& display) {
    QProcessEnvironment onDisplay = QProcessEnvironment::systemEnvironment();
    onDisplay.insert("DISPLAY", display.name());
    return std::make_unique<BackgroundProgram>(
        "trayer",
        QStringList{"--edge", "top", "--align", "right", "--widthtype", "pixel", "--width", "100",
                    "--heighttype", "pixel", "--height", QString::number(kPanelHeight), "--tint", "0xffffff"},
        onDisplay);
}

class InEmbeddedTray : public DesktopTest {
protected:
    InEmbeddedTray() {
        start();
        EXPECT_TRUE(becomes("tray", "there"));
    }

    QImage panelPicture() const {
        const QString file = folder.filePath("screen.png");
        EXPECT_EQ(tell("picture " + file.toLocal8Bit()), "done");
        return QImage(file).copy(0, 0, 800, kPanelHeight);
    }
    /// The middle of the blue arrow in the icon; nothing if it is not in the panel.
    QPoint arrow() const {
        const QImage panelImage = panelPicture();
        QPoint sum;
        int count = 0;
        for (int y = 0; y < panelImage.height(); ++y) {
            for (int x = 0; x < panelImage.width(); ++x) {
                const QColor color = panelImage.pixelColor(x, y);
                if (color.blue() > 180 && color.red() < 90) {
                    sum += QPoint(x, y);
                    ++count;
                }
            }
        }
        constexpr int kEnough = 10;
        return count < kEnough ? QPoint() : sum / count;
    }
    QPoint waitForArrow() const {
        EXPECT_TRUE(pumpUntil([this] { return !arrow().isNull(); })) << "the icon is not to be seen";
        return arrow();
    }
    void click(const QStringList& gesture) const {
        const QPoint place = waitForArrow();
        QProcessEnvironment onDisplay = environment;
        QProcess hand;
        hand.setProcessEnvironment(onDisplay);
        hand.start("xdotool",
                   QStringList{"mousemove", QString::number(place.x()), QString::number(place.y()), "click"} +
                       gesture);
        EXPECT_TRUE(hand.waitForFinished(kPatienceMs));
    }

    static inline const QStringList kDoubleClick{"--repeat", "2", "--delay", "60", "1"};
    static inline const QStringList kLeftClick{"1"}, kRightClick{"3"};

    QTemporaryDir folder;
    std::unique_ptr<BackgroundProgram> panel = startPanel(display);
};

} // namespace

TEST_F(InEmbeddedTray, TheIconIsToBeSeen) {
    const QPoint place = waitForArrow();
    EXPECT_GT(place.x(), 700) << "at the right edge, where the panel is";
}

TEST_F(InEmbeddedTray, ADoubleClickBringsTheWindowBackAndASingleOneDoesNot) {
    tell("hide");
    EXPECT_TRUE(becomes("window", "hidden"));
    click(kLeftClick);
    QtEventPump().pumpFor(700); // longer than the time between the clicks of a double click
    EXPECT_EQ(tell("window"), "hidden");
    click(kDoubleClick);
    EXPECT_TRUE(becomes("window", "shown"));
}

TEST_F(InEmbeddedTray, ARightClickOpensTheMenuWhetherTheWindowIsUpOrNot) {
    click(kRightClick);
    EXPECT_TRUE(becomes("menu", kMenu));
    click(kLeftClick);
    EXPECT_TRUE(becomes("menu", ""));
    tell("hide");
    click(kRightClick);
    EXPECT_TRUE(becomes("menu", kMenuOverHidden));
}

TEST_F(InEmbeddedTray, TheIconGoesWithTheProgram) {
    waitForArrow();
    program->end();
    start();
    waitForArrow();
}

/// No tray at all: a hidden window would never be found again.
class WithoutATray : public DesktopTest {};

TEST_F(WithoutATray, HidingMinimises) {
    start();
    EXPECT_EQ(tell("tray"), "none");
    tell("hide");
    EXPECT_TRUE(becomes("window", "minimised"));
}

TEST_F(WithoutATray, APanelThatIsStartedLaterIsFound) {
    start();
    tell("tip 42%|Speed: 3.50 MB/sec");
    EXPECT_EQ(tell("tray"), "none");
    const auto panel = startPanel(display);
    EXPECT_TRUE(becomes("tray", "there"));
    tell("hide");
    EXPECT_TRUE(becomes("window", "hidden"));
}

} // namespace tarnwell::test
