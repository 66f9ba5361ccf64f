#include "view/view_fixture.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTimer>

namespace tarnwell::view {

namespace {

void serve() {
    QApplication::processEvents();
    QApplication::processEvents();
}

void expectNothingClipped(const QWidget& window) {
    for (const QWidget* child : window.findChildren<QWidget*>()) {
        if (child->objectName().isEmpty() || !child->isVisible() || child->objectName().startsWith("qt_"))
            continue;
        const std::string name = child->objectName().toStdString();
        EXPECT_TRUE(child->parentWidget()->rect().contains(child->geometry())) << name;
        const bool hasText =
            qobject_cast<const QLabel*>(child) || qobject_cast<const QAbstractButton*>(child);
        if (hasText && child->sizePolicy().horizontalPolicy() != QSizePolicy::Ignored) {
            EXPECT_GE(child->width(), child->minimumSizeHint().width()) << name;
            EXPECT_GE(child->height(), child->minimumSizeHint().height()) << name;
        }
        if (qobject_cast<const QLineEdit*>(child) || qobject_cast<const QComboBox*>(child)) {
            EXPECT_GE(child->height(), child->minimumSizeHint().height()) << name;
        }
    }
}

void expectNoOverlap(const QWidget& parent) {
    QList<QWidget*> children;
    for (QWidget* child : parent.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (child->isVisible() && !child->isWindow())
            children.append(child);
    }
    for (qsizetype i = 0; i < children.size(); ++i) {
        for (qsizetype j = i + 1; j < children.size(); ++j) {
            EXPECT_FALSE(children[i]->geometry().intersects(children[j]->geometry()))
                << children[i]->objectName().toStdString() << " " << children[j]->objectName().toStdString();
        }
    }
    for (const QWidget* child : children) {
        if (qobject_cast<const QGroupBox*>(child) || child->metaObject() == &QWidget::staticMetaObject)
            expectNoOverlap(*child);
    }
}

class Fonts : public testing::TestWithParam<std::pair<const char*, int>> {
protected:
    Fonts() { QApplication::setFont(QFont(GetParam().first, GetParam().second)); }
    ~Fonts() override { QApplication::setFont(before_); }

private:
    const QFont before_ = QApplication::font();
};

void expectGood(const QWidget& window) {
    serve();
    expectNothingClipped(window);
    expectNoOverlap(window);
}

} // namespace

TEST_P(Fonts, EverythingFitsInEveryStateOfTheMainWindow) {
    ui::FrmMain form;
    const MainWindowView window(form);
    samples::start(form);
    expectGood(window);
    samples::discRead(form);
    expectGood(window);
    samples::localDisk(form);
    expectGood(window);
    samples::activity(form);
    expectGood(window);
    samples::games(form, 12);
    expectGood(window);
    samples::jobs(form);
    expectGood(window);
}

TEST_P(Fonts, EverythingFitsInTheStatusWindow) {
    ui::FrmStatus form;
    const StatusWindowView view(form);
    samples::jobRunning(form);
    expectGood(*view.window());
}

TEST_P(Fonts, EverythingFitsOnEveryPageOfTheSettingsWindow) {
    ui::FrmSettings form;
    const SettingsWindowView view(form);
    for (const auto tab :
         {ui::FrmSettings::kTarnwellTab, ui::FrmSettings::kGuiTab, ui::FrmSettings::kToolsTab}) {
        samples::settings(form, tab);
        expectGood(*view.window());
    }
    samples::ownLook(form);
    expectGood(*view.window());
}

TEST_P(Fonts, EverythingFitsInTheAboutWindow) {
    ui::FrmAbout form;
    const AboutWindowView view(form);
    samples::thanks(form);
    expectGood(*view.window());
    const auto* thanks = view.window()->findChild<QPlainTextEdit*>("txtAbout");
    EXPECT_FALSE(thanks->verticalScrollBar()->isVisible());
}

TEST_P(Fonts, TheSpeedOfAFastDiskIsNotCut) {
    ui::FrmStatus form;
    const StatusWindowView view(form);
    samples::jobRunning(form);
    form.lblSpeed.caption = "Speed: 348.38 MB/sec";
    serve();
    const auto* speed = view.window()->findChild<QLabel*>("lblSpeed");
    EXPECT_GE(speed->width(), speed->fontMetrics().horizontalAdvance(speed->text()));
}

TEST_P(Fonts, FontsOfTheControlsAreFittedToo) {
    ui::FrmMain form;
    const MainWindowView window(form);
    samples::start(form);
    for (ui::Control* control : form.controls()) {
        if (control->hasFont() && control != &form.txtOutput)
            control->font = ui::Font{"DejaVu Sans", 16, true, false};
    }
    expectGood(window);
}

INSTANTIATE_TEST_SUITE_P(Layout, Fonts,
                         testing::Values(std::pair("Tahoma", 8), std::pair("DejaVu Sans", 9),
                                         std::pair("DejaVu Sans", 14)));

class Layout : public MainWindow {};

TEST_F(Layout, EveryControlHasOneWidgetOfItsName) {
    for (const ui::Control* control : form.controls()) {
        const bool hasFace = control->kind != ui::Kind::Timer && control->kind != ui::Kind::CommonDialog;
        EXPECT_EQ(window.findChildren<QWidget*>(control->name).size(), hasFace ? 1 : 0)
            << control->name.toStdString();
    }
    EXPECT_TRUE(window.findChild<QTimer*>("tmrCompat"));
}

TEST_F(Layout, EveryControlHasItsToolTipAndState) {
    for (const ui::Control* control : form.controls()) {
        const auto* face = window.findChild<QWidget*>(control->name);
        if (!face)
            continue;
        EXPECT_EQ(face->toolTip(), control->toolTip.get()) << control->name.toStdString();
        EXPECT_EQ(face->isEnabledTo(face->parentWidget()), control->enabled) << control->name.toStdString();
    }
}

TEST_F(Layout, FieldsAreNamedForScreenReaders) {
    for (const ui::Control* control : form.controls()) {
        if (control->kind == ui::Kind::ComboBox || control->kind == ui::Kind::TextBox ||
            control->kind == ui::Kind::ListView) {
            EXPECT_FALSE(window.findChild<QWidget*>(control->name)->accessibleName().isEmpty())
                << control->name.toStdString();
        }
    }
}

TEST_F(Layout, TabGoesThroughTheControlsInTheirOrder) {
    QStringList visited;
    auto* widget = window.findChild<QWidget*>("optLAN");
    widget->setFocus();
    window.activateWindow();
    for (int step = 0; step < 13; ++step) {
        visited.append(QApplication::focusWidget()->objectName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    const QStringList expected{"optLAN",     "optLocal",    "txtIP",       "cmdAttach", "cmdShutdownPS2",
                               "optInstall", "optBrowse",   "optJobQueue", "chkOutput", "cmdSettings",
                               "cmdAbout",   "cmdMinimize", "cmdExit"};
    EXPECT_EQ(visited.join(' '), expected.join(' '));
}

TEST_F(Layout, TabStaysOutOfWhatTheJobQueueCovers) {
    samples::jobs(form);
    serve();
    EXPECT_FALSE(window.findChild<QWidget*>("cmdInstall")->isVisible());
    EXPECT_TRUE(window.findChild<QWidget*>("cmdStart")->isVisible());
    form.fmJob.visible = false;
    serve();
    EXPECT_TRUE(window.findChild<QWidget*>("cmdInstall")->isVisible());
}

TEST_F(Layout, LongTextsFromDataDoNotWidenTheWindow) {
    const int width = window.width();
    form.lblDiskSpace.caption = QString(500, 'W');
    form.cmbHD.addItem(QString(500, 'W'));
    form.txtISO.text = QString(500, 'W');
    serve();
    EXPECT_EQ(window.width(), width);
}

TEST_F(Layout, SwitchingPagesKeepsTheSizeOfTheWindow) {
    const QSize size = window.size();
    samples::games(form, 3);
    serve();
    EXPECT_EQ(window.size(), size);
    samples::jobs(form);
    serve();
    EXPECT_EQ(window.size(), size);
}

} // namespace tarnwell::view
