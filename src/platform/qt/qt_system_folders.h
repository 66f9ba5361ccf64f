#pragma once

#include "platform/ports.h"

namespace tarnwell {

class QtSystemFolders : public SystemFolders {
public:
    QString programFolder() const override;
    QString commandInterpreter() const override;
};

} // namespace tarnwell
