#include "support/gtest_qt.h"
#include "ui/qt/event_watcher.h"
#include "ui/qt/paced_painting.h"
#include "view/view_fixture.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>

namespace tarnwell::view {

TEST(PacedPainting, PaintsManyChangesAtOnceAndTheLastOneSoon) {
    QLabel window("at first");
    const PacedPainting paced(window);
    QString painted;
    int paintings = 0;
    new EventWatcher(window, [&](QEvent& event) {
        if (event.type() == QEvent::Paint) {
            ++paintings;
            painted = window.text();
        }
        return false;
    });
    window.show();
    QTRY_COMPARE(painted, QString("at first"));

    paintings = 0;
    QElapsedTimer elapsed;
    elapsed.start();
    for (int i = 0; i < 30; ++i) {
        window.setText(QString("change %1").arg(i));
        QTest::qWait(5);
    }
    QTRY_COMPARE(painted, QString("change 29"));
    const qint64 paces = elapsed.elapsed() / 100;
    EXPECT_LE(paintings, paces + 2);
}

TEST(PacedPainting, IsThatOfTheWindowThatEveryLineOfTheToolChanges) {
    ui::FrmStatus form;
    StatusWindowView view{form};
    samples::jobRunning(form);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(view.window()));
    int paintings = 0;
    auto& speed = *view.window()->findChild<QLabel*>(form.lblSpeed.name);
    new EventWatcher(speed, [&](QEvent& event) {
        paintings += event.type() == QEvent::Paint;
        return false;
    });
    QElapsedTimer elapsed;
    elapsed.start();
    for (int i = 0; i < 60; ++i) {
        form.lblSpeed.caption = QString("Speed: %1 MB/sec").arg(i);
        QTest::qWait(5);
    }
    EXPECT_LE(paintings, elapsed.elapsed() / 100 + 2);
    EXPECT_GE(paintings, 1);
}

} // namespace tarnwell::view
