#include "platform/native.h"
#include "platform/windows/system.h"

#include <mmsystem.h>

namespace tarnwell {

namespace {

class WindowsSound : public Sound {
public:
    void play(const QString& path) override {
        PlaySoundW(wide(path), nullptr, SND_FILENAME | SND_ASYNC | SND_NODEFAULT);
    }
};

} // namespace

std::unique_ptr<Sound> native::makeSound() {
    return std::make_unique<WindowsSound>();
}

} // namespace tarnwell
