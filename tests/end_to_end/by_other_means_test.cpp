#include "end_to_end/whole_program.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>

namespace tarnwell::test {
namespace {

/// A user who writes and chooses by other means than keys and mouse.
class ByOtherMeans : public WholeProgram {
protected:
    static QWidget& widget(const QString& name) {
        for (const QWidget* window : QApplication::topLevelWidgets()) {
            if (auto* found = window->findChild<QWidget*>(name))
                return *found;
        }
        throw std::runtime_error("no " + name.toStdString());
    }
    static QAccessibleInterface& spoken(const QString& name) {
        return *QAccessible::queryAccessibleInterface(&widget(name));
    }
    QString storedAddress() const {
        const QString lines = contents(bench.path("config.cfg"));
        return lines.section("IP=", 1).section("\r\n", 0, 0);
    }
};

TEST_F(ByOtherMeans, TheAddressThatAssistiveTechnologyWritesIsTheOneThatIsAsked) {
    play([&](User& user) {
        user.look([] {
            spoken("txtIP").setText(QAccessible::Value, "127.0.0.1");
            spoken("cmdAttach").actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        });
        user.waitFor("the games of the console", [] { return widget("cmdDelete").isEnabled(); });
        user.waitUntilIdle();
        EXPECT_EQ(user.text("txtIP"), "127.0.0.1");
        EXPECT_EQ(user.rows("lstHD").size(), 2);
        user.look([] {
            spoken("optBrowse").actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        });
        EXPECT_TRUE(user.shown("lstHD"));
    });
    EXPECT_TRUE(bench.log().contains("> tarn_toc 127.0.0.1"));
    EXPECT_EQ(storedAddress(), "127.0.0.1");
}

TEST_F(ByOtherMeans, LineBreaksThatWerePastedWithAnAddressReachNeitherTheToolNorTheSettings) {
    play([&](User& user) {
        user.type("txtIP", "");
        user.look([] {
            QApplication::clipboard()->setText("127.0.0.1\r\nClosePS2=1\n");
            static_cast<QLineEdit&>(widget("txtIP")).paste();
        });
        EXPECT_EQ(user.text("txtIP"), "127.0.0.1 ClosePS2=1");
    });
    EXPECT_EQ(storedAddress(), "127.0.0.1 ClosePS2=1");
    EXPECT_TRUE(contents(bench.path("config.cfg")).contains("\r\nClosePS2=0\r\n"));
}

} // namespace
} // namespace tarnwell::test
