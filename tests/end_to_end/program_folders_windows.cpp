#include "end_to_end/program_folders.h"

QStringList tarnwell::test::programFolders() {
    return {"my PS2 tools", QString::fromUtf8("f\xc3\xbcr Pok\xc3\xa9mon"), "Program Files/Tarn Well"};
}
