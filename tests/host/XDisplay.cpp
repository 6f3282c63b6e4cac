#include "XDisplay.h"

#include <array>
#include <cstdlib>
#include <string_view>
#include <xcb/xcb.h>

#include <QStandardPaths>
#include <gtest/gtest.h>

namespace zephyrix::testing {

namespace {

template <class Reply>
using Owned = std::unique_ptr<Reply, decltype([](Reply* reply) { std::free(reply); })>;

template <class Event>
void send(xcb_connection_t* display, std::uint32_t window, int type, std::uint8_t detail,
          std::uint32_t root, const QPoint& point) {
    Event event{};
    event.response_type = static_cast<std::uint8_t>(type);
    event.detail = detail;
    event.time = XCB_CURRENT_TIME;
    event.root = root;
    event.event = window;
    event.event_x = static_cast<std::int16_t>(point.x());
    event.event_y = static_cast<std::int16_t>(point.y());
    event.same_screen = 1;
    static_assert(sizeof event == 32);
    xcb_send_event(display, 0, window, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char*>(&event));
    xcb_flush(display);
}

}  // namespace

XDisplay::XDisplay() : connection_(nullptr, xcb_disconnect) {
    const QString program = QStandardPaths::findExecutable(QStringLiteral("Xvfb"));
    if (program.isEmpty())
        return;
    server_.setStandardErrorFile(QProcess::nullDevice());
    server_.start(program,
                  {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                   QStringLiteral("0"), QStringLiteral("1024x768x24"), QStringLiteral("-nolisten"),
                   QStringLiteral("tcp")});
    QByteArray said;
    while (!said.endsWith('\n') && server_.waitForReadyRead())
        said += server_.readAllStandardOutput();
    name_ = QLatin1Char(':') + QString::fromLatin1(said.trimmed());
    connection_.reset(xcb_connect(name_.toLatin1().constData(), nullptr));
    EXPECT_EQ(xcb_connection_has_error(connection_.get()), 0) << name_.toStdString();
}

XDisplay::~XDisplay() {
    connection_.reset();
    server_.terminate();
    server_.waitForFinished();
}

std::uint32_t XDisplay::root() const {
    return xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data->root;
}

std::optional<XDisplay::Window> XDisplay::window() const {
    xcb_connection_t* const display = connection_.get();
    const Owned<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(display, xcb_query_tree(display, root()), nullptr));
    for (int i = xcb_query_tree_children_length(tree.get()) - 1; i >= 0; --i) {
        const xcb_window_t id = xcb_query_tree_children(tree.get())[i];
        const Owned<xcb_get_window_attributes_reply_t> attributes(xcb_get_window_attributes_reply(
            display, xcb_get_window_attributes(display, id), nullptr));
        const Owned<xcb_get_geometry_reply_t> area(
            xcb_get_geometry_reply(display, xcb_get_geometry(display, id), nullptr));
        const Owned<xcb_get_property_reply_t> title(xcb_get_property_reply(
            display,
            xcb_get_property(display, 0, id, XCB_ATOM_WM_NAME, XCB_GET_PROPERTY_TYPE_ANY, 0, 64),
            nullptr));
        // Any of them is missing when the window has gone meanwhile.
        if (!area || !title || !attributes || attributes->map_state != XCB_MAP_STATE_VIEWABLE)
            continue;
        return Window{
            id,
            QString::fromUtf8(static_cast<const char*>(xcb_get_property_value(title.get())),
                              xcb_get_property_value_length(title.get())),
            QRect(area->x, area->y, area->width, area->height), attributes->override_redirect != 0};
    }
    return std::nullopt;
}

QByteArray XDisplay::picture(const Window& window) const {
    xcb_connection_t* const display = connection_.get();
    const Owned<xcb_get_image_reply_t> image(
        xcb_get_image_reply(display,
                            xcb_get_image(display, XCB_IMAGE_FORMAT_Z_PIXMAP, window.id, 0, 0,
                                          static_cast<std::uint16_t>(window.area.width()),
                                          static_cast<std::uint16_t>(window.area.height()), ~0U),
                            nullptr));
    if (!image)
        return {};
    return {reinterpret_cast<const char*>(xcb_get_image_data(image.get())),
            xcb_get_image_data_length(image.get())};
}

void XDisplay::pressCode(const Window& window, std::uint8_t code) {
    for (const int type : {XCB_KEY_PRESS, XCB_KEY_RELEASE})
        send<xcb_key_press_event_t>(connection_.get(), window.id, type, code, root(), QPoint(1, 1));
}

void XDisplay::press(const Window& window, Key key) {
    pressCode(window, static_cast<std::uint8_t>(key));
}

void XDisplay::type(const Window& window, const char* letters) {
    struct Row {
        std::string_view letters;
        std::size_t firstCode;
    };
    constexpr std::array keyboard{Row{"qwertyuiop", 24}, Row{"asdfghjkl", 38}, Row{"zxcvbnm", 52}};
    for (const char letter : std::string_view(letters))
        for (const Row& row : keyboard)
            if (const auto at = row.letters.find(letter); at != std::string_view::npos)
                pressCode(window, static_cast<std::uint8_t>(row.firstCode + at));
}

void XDisplay::click(const Window& window, const QPoint& point) {
    for (const int type : {XCB_BUTTON_PRESS, XCB_BUTTON_RELEASE})
        send<xcb_button_press_event_t>(connection_.get(), window.id, type, XCB_BUTTON_INDEX_1,
                                       root(), point);
}

}  // namespace zephyrix::testing
