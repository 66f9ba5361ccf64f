#pragma once

#include "tool_under_test.h"

#include <QApplication>
#include <QTreeView>

namespace tarnwell::bench {

/// As many as a list of games is measured with.
constexpr int kGames = 10'000;

/// The tool's table of so many games, one in three on CD.
inline QString gameTable(int games) {
    QString text = "type   size flags          dma startup      name\r\n";
    for (int i = 0; i < games; ++i) {
        const bool cd = i % 3 == 0;
        text += QString::asprintf("%-4s%7dKB %-15sSLUS_9%02d.%02d   The Long Title of Game %d\r\n",
                                  cd ? "CD" : "DVD", cd ? 716800 : 4193280, cd ? "+1+3" : "", i / 100 % 100,
                                  i % 100, i);
    }
    return text + "total 114473MB, used 26712MB, available 87761MB\r\n";
}

/// The program from the tool's text of so many games to painted rows.
inline void showGames(ToolUnderTest& tool, QTreeView& view, const QString& table, int games) {
    tool.shared.blnReadTOC = true;
    tool.interpreter.ParseToolOutput(table);
    while (view.model()->rowCount() < games)
        QApplication::processEvents();
    view.viewport()->repaint();
}

} // namespace tarnwell::bench
