#include "queue/job_caption.h"
#include "support/gtest_qt.h"

#include <QDir>

#include <gtest/gtest.h>

namespace tarnwell::test {

TEST(JobCaption, TellsInWordsWhatEachKindOfCommandDoes) {
    EXPECT_EQ(JobCaption("inject_dvd 192.168.0.10 LANTERN x.iso SLUS_990.71 +1"),
              "Installing [LANTERN] onto Device [192.168.0.10]");
    EXPECT_EQ(JobCaption("inject_cd hdd1: COPPER y.iso"), "Installing [COPPER] onto Device [hdd1:]");
    EXPECT_EQ(JobCaption("extract hdd1: LANTERN out.iso"), "Backing-up Game [LANTERN] to PC");
    EXPECT_EQ(JobCaption("delete hdd1: LANTERN"), "Deleting Game [LANTERN] from Device [hdd1:]");
    EXPECT_EQ(JobCaption("dump cd0: out.iso"), "Creating ISO File [out.iso]");
}

TEST(JobCaption, ADumpShowsTheFileWithoutItsFolder) {
    EXPECT_EQ(JobCaption(R"(dump cd0: "C:\my images\out.iso")"), "Creating ISO File [out.iso]");
    EXPECT_EQ(JobCaption("dump cd0: " + QDir::toNativeSeparators("/images/out.iso")),
              "Creating ISO File [out.iso]");
}

TEST(JobCaption, AQuotedNameStaysOneWord) {
    EXPECT_EQ(JobCaption("delete hdd1: \"Lantern and Quill\""),
              "Deleting Game [Lantern and Quill] from Device [hdd1:]");
    EXPECT_EQ(JobCaption("inject_dvd \"my console\" \"Lantern and Quill\" x.iso"),
              "Installing [Lantern and Quill] onto Device [my console]");
    EXPECT_EQ(JobCaption("inject_dvd hdd1: \"\" x.iso"), "Installing [] onto Device [hdd1:]");
}

TEST(JobCaption, ACommandWithTooFewWordsStandsForItself) {
    for (const char* command : {"delete", "delete hdd1:", "dump cd0:", "inject_dvd",
                                "inject_cd hdd1:", "extract x", "", " ", "   ", "\"", "\"\""})
        EXPECT_EQ(JobCaption(command), command);
}

TEST(JobCaption, AnythingElseStandsForItself) {
    for (const char* command :
         {"modify hdd1: A B", "Delete hdd1: A", "inject_ hdd1: A", "one two three four"})
        EXPECT_EQ(JobCaption(command), command);
}

TEST(JobCaption, OddBlanksAndQuotesAreReadAsTheyStand) {
    EXPECT_EQ(JobCaption("  delete hdd1: A"), "Deleting Game [A] from Device [hdd1:]");
    EXPECT_EQ(JobCaption("delete  A"), "Deleting Game [A] from Device []") << "an empty word in between";
    EXPECT_EQ(JobCaption("delete hdd1: A "), "Deleting Game [A ] from Device [hdd1:]");
    EXPECT_EQ(JobCaption("delete hdd1: \"Lantern and"), "Deleting Game [Lantern and] from Device [hdd1:]")
        << "a quote that is never closed ends with the command";
    EXPECT_EQ(JobCaption("delete hdd1: junk\"A B\"xC"), "Deleting Game [A B] from Device [hdd1:]");
}

} // namespace tarnwell::test
