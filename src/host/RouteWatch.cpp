#include "RouteWatch.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>
#include <unistd.h>

namespace zephyrix {

namespace {

/// Negative, with errno, when it cannot be had.
int routeSocket() {
    const int descriptor =
        ::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC | SOCK_NONBLOCK, NETLINK_ROUTE);
    sockaddr_nl address{};
    address.nl_family = AF_NETLINK;
    address.nl_groups = RTMGRP_IPV4_ROUTE | RTMGRP_IPV6_ROUTE;
    sockaddr general{};
    static_assert(sizeof address <= sizeof general);
    std::memcpy(&general, &address, sizeof address);
    if (descriptor < 0 || ::bind(descriptor, &general, sizeof address) == 0)
        return descriptor;
    const int reason = errno;
    ::close(descriptor);
    errno = reason;
    return -1;
}

}  // namespace

RouteWatch::RouteWatch() : DescriptorWatch(routeSocket(), QStringLiteral("the network")) {}

bool RouteWatch::tellsOfDefaultRoute(std::span<const char> messages) {
    while (messages.size() >= sizeof(nlmsghdr)) {
        nlmsghdr head{};
        std::memcpy(&head, messages.data(), sizeof head);
        if (head.nlmsg_len < sizeof head || head.nlmsg_len > messages.size())
            return false;
        if (head.nlmsg_type == RTM_NEWROUTE && head.nlmsg_len >= NLMSG_LENGTH(sizeof(rtmsg))) {
            rtmsg route{};
            std::memcpy(&route, messages.data() + NLMSG_HDRLEN, sizeof route);
            if (route.rtm_dst_len == 0 && route.rtm_type == RTN_UNICAST)
                return true;
        }
        messages =
            messages.subspan(std::min<std::size_t>(NLMSG_ALIGN(head.nlmsg_len), messages.size()));
    }
    return false;
}

void RouteWatch::ready() {
    alignas(nlmsghdr) std::array<char, 32768> news{};
    bool added = false;
    for (;;) {
        const ssize_t length = ::recv(descriptor(), news.data(), news.size(), 0);
        if (length > 0)
            added |= tellsOfDefaultRoute({news.data(), static_cast<std::size_t>(length)});
        else if (length == 0 || (errno != ENOBUFS && errno != EINTR))
            break;
        else
            added |= errno == ENOBUFS;  // so many changes that some were lost
    }
    if (added)
        Q_EMIT defaultRouteAdded();
}

}  // namespace zephyrix
