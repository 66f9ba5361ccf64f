#pragma once

#include "re_entry/random.h"
#include "support/fake_ports.h"

namespace tarnwell::test {

/// A tool that mostly does what it is asked, soon; at times it is slow, silent, fails, or does not heed the
/// interrupt.
class MoodyTool {
public:
    explicit MoodyTool(Random& random) : random_(random) {}

    bool moody = false;
    std::optional<ChildScript> answerTo(const QString& command);

    /// The startup file of every game on a device, which tells where the game was read. Its name ends so,
    /// too.
    static QString startupOn(const QString& device);
    /// The same of the game in an image, and of that on a disc.
    static constexpr const char *kStartupInImage = "IMG_200.71", *kStartupOnDisc = "DSC_200.71";

private:
    static ChildScript wellBehaved(const QString& command);
    void spoil(ChildScript& script);

    Random& random_;
};

} // namespace tarnwell::test
