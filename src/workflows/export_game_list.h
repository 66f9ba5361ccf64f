#pragma once

#include "base/shared.h"

namespace tarnwell {

/// Writes the list of games to a text file as a numbered list. What stands behind a name is up to the user,
/// in words such as %size.
class ExportGameList {
public:
    explicit ExportGameList(Shared& shared);

private:
    void exportList();
    QString listText(const QString& format) const;
    qsizetype paddedWidth() const;

    Shared& shared_;
};

} // namespace tarnwell
