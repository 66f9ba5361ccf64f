#pragma once

#include "platform/ports.h"

namespace tarnwell {

class QtUrlOpener : public UrlOpener {
public:
    void open(const QString& url) override;
};

} // namespace tarnwell
