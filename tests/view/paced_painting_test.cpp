#include "support/gtest_qt.h"
#include "ui/qt/event_watcher.h"
#include "ui/qt/paced_painting.h"

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

} // namespace tarnwell::view
