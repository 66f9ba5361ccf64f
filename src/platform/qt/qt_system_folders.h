#pragma once

#include "platform/native.h"

#include <QCoreApplication>

namespace tarnwell {

/// By default the folder that this program's own file is in, and the system's own for a user's settings.
class QtSystemFolders : public SystemFolders {
public:
    explicit QtSystemFolders(const QString& programFolder = QCoreApplication::applicationDirPath(),
                             const QString& applicationData = native::applicationData());

    QString programFolder() const override { return programFolder_; }
    QString commandInterpreter() const override;
    QString applicationData() const override { return applicationData_; }
    std::optional<WindowsProfile> windowsProfile() const override;
    QString pathInCodePage(const QString& path) const override;

private:
    QString programFolder_;
    QString applicationData_;
};

} // namespace tarnwell
