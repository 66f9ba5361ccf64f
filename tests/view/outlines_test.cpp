#include "ui/qt/colors.h"
#include "ui/qt/filled_bar.h"
#include "ui/qt/group_box.h"
#include "view/view_fixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeView>

#include <array>

namespace tarnwell::view {

namespace {

QImage pictureOf(QWidget& widget, double scale) {
    QImage picture(widget.size() * scale, QImage::Format_RGB32);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::white);
    widget.render(&picture);
    return picture;
}

/// Looks from the middle of an empty box out to each of its four sides.
void expectFourSides(const QImage& picture, const QRectF& box, const QColor& edge, const char* what) {
    const double scale = picture.devicePixelRatio();
    const QRect pixels((box.topLeft() * scale).toPoint(), (box.bottomRight() * scale).toPoint());
    for (const QPoint& step : {QPoint(-1, 0), QPoint(1, 0), QPoint(0, -1), QPoint(0, 1)}) {
        QPoint at = pixels.center();
        while (pixels.contains(at) && picture.pixel(at) != edge.rgb())
            at += step;
        EXPECT_TRUE(pixels.contains(at)) << what << " at " << scale << ", " << step.x() << ", " << step.y();
    }
}

/// The program in a palette of its own for as long as this lives.
struct ChosenPalette {
    explicit ChosenPalette(const QPalette& palette) { QApplication::setPalette(palette); }
    ~ChosenPalette() {
        QApplication::setPalette(QPalette());
        QApplication::setStyle("Fusion");
    }
    ChosenPalette(const ChosenPalette&) = delete;
    ChosenPalette& operator=(const ChosenPalette&) = delete;
};

/// How far the lightest pixel of a widget's rim stands out of its ground, from 0 to 255.
int lightestOfRim(QWidget& widget, const QRect& part) {
    const QImage picture = widget.grab(part).toImage();
    int lightest = 0;
    for (int x = 0; x < picture.width(); ++x) {
        for (int y : {0, 1, picture.height() - 2, picture.height() - 1})
            lightest = std::max(lightest, qGray(picture.pixel(x, y)));
    }
    return lightest;
}

} // namespace

class Outlines : public testing::TestWithParam<double> {};

TEST_P(Outlines, HaveFourSidesWhereverABoxStands) {
    const QPalette palette = QApplication::palette();
    const QColor ground = palette.color(QPalette::Window);
    for (int offset = 0; offset < 8; ++offset) {
        QWidget window;
        window.resize(360, 160);
        FilledBar bar(&window);
        bar.setGeometry(10 + offset, 60 + offset, 101, 21);
        GroupBox group(&window);
        group.setGeometry(160 + offset, 10 + offset, 101, 81);
        const QImage picture = pictureOf(window, GetParam());
        expectFourSides(picture, QRectF(bar.geometry()), ground.darker(160), "bar");
        expectFourSides(picture, QRectF(group.geometry()),
                        mixed(ground, palette.color(QPalette::WindowText), 0.18), "group");
    }
}

INSTANTIATE_TEST_SUITE_P(AtScale, Outlines, testing::Values(1.0, 1.25, 1.5, 1.75, 2.0, 2.25),
                         [](const auto& scale) {
                             return std::to_string(static_cast<int>(scale.param * 100));
                         });

TEST(OutlinesOnBlack, CanBeSeenOfAllThatIsClickedOrTypedInto) {
    const ChosenPalette black(samples::blackPalette());
    ui::FrmMain form;
    MainWindowView window(form);
    samples::discRead(form);
    constexpr int kVisible = 70;
    const auto expectVisible = [&](QWidget& widget, const QRect& part) {
        EXPECT_GE(lightestOfRim(widget, part), kVisible) << widget.objectName().toStdString();
    };
    for (const ui::Control* control : std::initializer_list<const ui::Control*>{
             &form.cmdExit, &form.txtGameName, &form.cmbType, &form.txtIP, &form.lstHD, &form.picDiskSpace,
             &form.fmDevice}) {
        auto& widget = *window.findChild<QWidget*>(control->name);
        expectVisible(widget, widget.rect());
    }
    for (const ui::Control* control :
         std::initializer_list<const ui::Control*>{&form.chkOutput, &form.optLAN}) {
        auto& button = *window.findChild<QAbstractButton*>(control->name);
        QStyleOptionButton option;
        option.initFrom(&button);
        const bool round = qobject_cast<QRadioButton*>(&button);
        expectVisible(button, button.style()->subElementRect(round ? QStyle::SE_RadioButtonIndicator
                                                                   : QStyle::SE_CheckBoxIndicator,
                                                             &option, &button));
    }
}

TEST(OutlinesOnBlack, ComeWithAColourThatTheUserChooses) {
    ui::FrmMain form;
    MainWindowView window(form);
    auto& exit = *window.findChild<QWidget*>(form.cmdExit.name);
    const QStyle* const before = exit.style();
    form.backColor = 0xFFFFFF;
    EXPECT_EQ(exit.style(), before) << "what every widget would notice is done only where it is needed";
    form.backColor = 0;
    EXPECT_NE(exit.style(), before);
    QApplication::setStyle("Fusion");
}

TEST(TitlesOfGroups, KeepTheirDescenders) {
    for (int points = 6; points < 40; ++points) {
        GroupBox box;
        box.setFont(QFont("DejaVu Sans", points));
        box.resize(400, 200);
        box.setTitle("gjpqy");
        const QImage deep = pictureOf(box, 1);
        box.setTitle("iiiii");
        const QImage flat = pictureOf(box, 1);
        int last = 0;
        for (int y = 0; y < deep.height(); ++y) {
            for (int x = 0; x < deep.width(); ++x)
                last = deep.pixel(x, y) != flat.pixel(x, y) ? y : last;
        }
        int baseline = 0;
        for (int y = 0; y <= last; ++y) {
            for (int x = 0; x < QFontMetrics(box.font()).horizontalAdvance("iiiii"); ++x)
                baseline = qGray(flat.pixel(x, y)) < 100 ? y : baseline;
        }
        EXPECT_GE(last - baseline, QFontMetrics(box.font()).tightBoundingRect("gjpqy").bottom() - 1)
            << points;
    }
}

} // namespace tarnwell::view
