// A module that refuses every version but its own, which nobody has.
#include <qglobal.h>

extern "C" Q_DECL_EXPORT void* zephyrix_make_transport(const char* /*version*/) {
    return nullptr;
}
