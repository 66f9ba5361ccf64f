#pragma once

#include <QStringList>

namespace tarnwell::kit {

/// What tests may depend on, for people to read; nothing that tells whose machine it is.
QStringList describeMachine();

} // namespace tarnwell::kit
