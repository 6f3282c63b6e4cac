#include "AddressRules.h"

#include <algorithm>
#include <arpa/inet.h>
#include <array>
#include <cstdint>

namespace zephyrix {

namespace {

constexpr std::uint8_t ownNetwork = 127;

using Ipv6 = std::array<std::uint8_t, 16>;
constexpr Ipv6 ipv6Self{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1};
constexpr std::array<std::uint8_t, 12> ipv4InIpv6{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xff, 0xff};

/// Of an address as QUrl gives it, which has brought every spelling into one form: 127.1 and
/// 0x7f000001 are 127.0.0.1 there.
bool isLoopback(const QString& host) {
    std::array<std::uint8_t, 4> ipv4{};
    if (::inet_pton(AF_INET, host.toLatin1().constData(), ipv4.data()) == 1)
        return ipv4.front() == ownNetwork;
    Ipv6 ipv6{};
    const QString withoutZone = host.section(QLatin1Char('%'), 0, 0);
    if (::inet_pton(AF_INET6, withoutZone.toLatin1().constData(), ipv6.data()) != 1)
        return false;
    return ipv6 == ipv6Self || (std::equal(ipv4InIpv6.begin(), ipv4InIpv6.end(), ipv6.begin()) &&
                                ipv6[ipv4InIpv6.size()] == ownNetwork);
}

}  // namespace

bool isFeedAddress(const QUrl& address) {
    const QString scheme = address.scheme();
    return address.isValid() && !address.host().isEmpty() &&
           (scheme == QLatin1String("http") || scheme == QLatin1String("https"));
}

bool isThisMachine(const QUrl& address) {
    return address.host() == QLatin1String("localhost") || isLoopback(address.host());
}

}  // namespace zephyrix
