#include "tour/seen_widgets.h"
#include "tour/user.h"

#include <QComboBox>
#include <QMessageBox>
#include <QProgressBar>
#include <QTreeView>

#include <thread>

namespace tarnwell::tour {

namespace {

constexpr std::chrono::milliseconds kGlanceEvery{10};

} // namespace

bool User::shown(const QString& name) {
    return look([&] { return widget(name).isVisible() && !widget(name).window()->isMinimized(); });
}

bool User::enabled(const QString& name) {
    return look([&] { return widget(name).isEnabled(); });
}

QString User::text(const QString& name) {
    return look([&] { return captionOf(widget(name)); });
}

QStringList User::entries(const QString& comboBox) {
    return look([&] {
        const auto& list = static_cast<QComboBox&>(widget(comboBox));
        QStringList texts;
        for (int i = 0; i < list.count(); ++i)
            texts += list.itemText(i);
        return texts;
    });
}

QStringList User::rows(const QString& list) {
    return look([&] {
        const QAbstractItemModel& model = *static_cast<QTreeView&>(widget(list)).model();
        QStringList texts;
        for (int row = 0; row < model.rowCount(); ++row) {
            QStringList columns;
            for (int column = 0; column < model.columnCount(); ++column)
                columns += model.index(row, column).data().toString();
            texts += columns.join(" | ");
        }
        return texts;
    });
}

int User::percent(const QString& bar) {
    return look([&] { return static_cast<QProgressBar&>(widget(bar)).value(); });
}

bool User::windowUp(const QString& form) {
    return look([&] {
        const QWidget* const window = windowOf(form);
        return window && window->isVisible() && !window->isMinimized();
    });
}

bool User::messageUp() {
    return look([] { return openDialog<QMessageBox>() != nullptr; });
}

void User::waitFor(const QString& what, const std::function<bool()>& seen) {
    const auto giveUp = std::chrono::steady_clock::now() + kPatience;
    while (!look(seen)) {
        if (std::chrono::steady_clock::now() > giveUp)
            throw Stuck("Waited in vain for " + what + '.');
        std::this_thread::sleep_for(kGlanceEvery);
    }
}

void User::waitForText(const QString& name, const QString& text) {
    waitFor(name + " to show \"" + text + '"', [&] { return captionOf(widget(name)) == text; });
}

void User::waitUntilIdle() {
    waitFor("the program to be done", [this] {
        if (const auto* const message = openDialog<QMessageBox>())
            throw Stuck("A message is in the way: " + message->text());
        return handlersRunning_ == 0;
    });
}

} // namespace tarnwell::tour
