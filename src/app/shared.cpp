#include "app/shared.h"

namespace tarnwell {

Shared::Shared(const Ports& outside) : ports(outside), config(outside.folders) {}

void Shared::message(const QString& text, MessageIcon icon) {
    ports.dialogs.message(text, icon, title);
}

} // namespace tarnwell
