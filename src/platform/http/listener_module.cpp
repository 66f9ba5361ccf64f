#include "platform/http/qt_http_listener.h"

/// What the program asks this library for, by name. The caller owns what it gets.
extern "C" tarnwell::HttpListener* tarnwellMakeHttpListener() {
    return new tarnwell::QtHttpListener;
}
