#pragma once

#include "platform/ports.h"

#include <QCoreApplication>

namespace tarnwell {

/// By default the folder that this program's own file is in.
class QtSystemFolders : public SystemFolders {
public:
    explicit QtSystemFolders(const QString& programFolder = QCoreApplication::applicationDirPath());

    QString programFolder() const override { return programFolder_; }
    QString commandInterpreter() const override;

private:
    QString programFolder_;
};

} // namespace tarnwell
