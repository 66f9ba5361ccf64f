#pragma once

#include <QString>

namespace tarnwell::test {

/// A path as the tool gets it. The folder for temporary files may have blanks in its name, and all that lies
/// in it.
inline QString toolArgument(const QString& path) {
    return path.contains(' ') ? '"' + path + '"' : path;
}

} // namespace tarnwell::test
