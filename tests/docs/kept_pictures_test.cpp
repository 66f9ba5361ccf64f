#include "support/gtest_qt.h"
#include "tour/kept_pictures.h"

#include <QPainter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tarnwell::test {

namespace {

constexpr QRect kClock(100, 50, 40, 12);

/// A window with a clock in it.
QImage window() {
    QImage picture(200, 100, QImage::Format_RGB32);
    picture.fill(Qt::white);
    tour::noteVaryingPlaces(picture, {kClock});
    return picture;
}

QImage windowWith(const QRect& part) {
    QImage picture = window();
    QPainter(&picture).fillRect(part, Qt::darkBlue);
    return picture;
}

} // namespace

TEST(KeptPictures, TheSameWindowIsTheSame) {
    EXPECT_EQ(tour::difference(window(), window()), "");
}

TEST(KeptPictures, AnotherLetterIsADifference) {
    EXPECT_EQ(tour::difference(window(), windowWith(QRect(10, 20, 4, 8))),
              "it looks different from (10, 20) to (13, 27)");
}

TEST(KeptPictures, AFewStrayPixelsAreNone) {
    EXPECT_EQ(tour::difference(window(), windowWith(QRect(10, 20, 4, 3))), "");
}

TEST(KeptPictures, WhatAClockShowsIsNone) {
    EXPECT_EQ(tour::difference(window(), windowWith(kClock)), "");
    EXPECT_NE(tour::difference(window(), windowWith(kClock.adjusted(0, 0, 2, 2))), "");
}

TEST(KeptPictures, AClockThatStandsElsewhereIsADifference) {
    QImage moved = window();
    tour::noteVaryingPlaces(moved, {kClock.translated(0, 20)});
    EXPECT_EQ(tour::difference(window(), moved), "clocks, bars or paths stand elsewhere");
    tour::noteVaryingPlaces(moved, {});
    EXPECT_EQ(tour::difference(window(), moved), "clocks, bars or paths stand elsewhere");
}

TEST(KeptPictures, AnotherSizeIsADifference) {
    EXPECT_EQ(tour::difference(window(), window().copy(0, 0, 200, 90)),
              "its size was 200 x 100 and is 200 x 90");
}

TEST(KeptPictures, AreFoundByTheNameOfTheStepAndKeepTheirPlaces) {
    const QTemporaryDir folder;
    ASSERT_TRUE(window().save(folder.filePath("07-installing.png")));
    EXPECT_EQ(tour::difference(windowWith(kClock), tour::freshPicture(folder.path(), "installing")), "");
    EXPECT_EQ(tour::difference(window(), tour::freshPicture(folder.path(), "stalling")),
              "the tour shows it no more");
}

} // namespace tarnwell::test
