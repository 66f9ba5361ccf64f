#include "app/config_store.h"
