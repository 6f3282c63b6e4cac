#include "Compositor.h"

#include <cstdlib>
#include <memory>
#include <string_view>
#include <xcb/xcb.h>

#include <QGuiApplication>

namespace zephyrix {

namespace {

struct Free {
    void operator()(void* reply) const noexcept { std::free(reply); }
};
template <class Reply>
using Owned = std::unique_ptr<Reply, Free>;

bool hasSelectionOwner(xcb_connection_t* display, std::string_view name) {
    const auto question =
        xcb_intern_atom(display, 1, static_cast<std::uint16_t>(name.size()), name.data());
    const Owned<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(display, question, nullptr));
    if (!atom || atom->atom == XCB_ATOM_NONE)
        return false;
    const Owned<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(
        display, xcb_get_selection_owner(display, atom->atom), nullptr));
    return owner && owner->owner != XCB_WINDOW_NONE;
}

}  // namespace

bool isComposited() {
    const auto* const x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
    xcb_connection_t* const display = x11 == nullptr ? nullptr : x11->connection();
    return display == nullptr || hasSelectionOwner(display, "_NET_WM_CM_S0");
}

}  // namespace zephyrix
