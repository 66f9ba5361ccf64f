#pragma once

#include <QTemporaryFile>

namespace tarnwell::view {

/// The screens of a program without any: a large one, and beside it the one of a small laptop. To be made
/// before the application. Where there are real screens they stay.
class Screens {
public:
    static constexpr int kLaptopLeft = 4000;

    Screens() {
        if (qgetenv("QT_QPA_PLATFORM") != "offscreen" || !layout_.open())
            return;
        layout_.write(R"({"screens": [
            {"name": "large", "x": 0, "y": 0, "width": 2560, "height": 1600,
             "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1},
            {"name": "laptop", "x": 4000, "y": 0, "width": 1366, "height": 768,
             "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
        layout_.flush();
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + layout_.fileName().toLocal8Bit());
    }

private:
    QTemporaryFile layout_;
};

} // namespace tarnwell::view
