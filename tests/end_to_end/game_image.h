#pragma once

#include <QByteArray>
#include <QString>

namespace tarnwell::test {

/// Makes an image of a game, by a program that is not ours where there is one, else by the simulator's own
/// code. `data` stands somewhere in it.
void makeGameImage(const QString& file, const QString& label, const QString& startup, const QByteArray& data);

} // namespace tarnwell::test
