#include "ui/qt/application_font.h"

void tarnwell::view::useOwnFont() {}
