// What zephyrix-network.so gives to the program that loads it.
#include <cstring>
#include <memory>
#include <type_traits>

#include "NetworkTransport.h"
#include "transport/TransportModule.h"

extern "C" Q_DECL_EXPORT zephyrix::FeedTransport* zephyrix_make_transport(const char* version) {
    if (std::strcmp(version, ZEPHYRIX_VERSION) != 0)
        return nullptr;
    return std::make_unique<zephyrix::NetworkTransport>().release();
}

static_assert(std::is_same_v<decltype(&zephyrix_make_transport), zephyrix::TransportModule::Make>);
