#pragma once

#include <memory>
#include <optional>

#include <QByteArray>
#include <QProcess>
#include <QRect>
#include <QString>

struct xcb_connection_t;

namespace zephyrix::testing {

/// An X display of the test's own, without a window manager, and what a user does at it.
class XDisplay {
  public:
    XDisplay();
    ~XDisplay();
    XDisplay(const XDisplay&) = delete;
    XDisplay& operator=(const XDisplay&) = delete;

    /// False where no Xvfb is installed.
    [[nodiscard]] bool isRunning() const noexcept { return connection_ != nullptr; }
    [[nodiscard]] const QString& name() const noexcept { return name_; }  // ":42"

    struct Window {
        std::uint32_t id = 0;
        QString title;
        QRect area;
        bool popup = false;  // lies outside any window manager's care
    };
    /// The topmost one that is mapped; nothing when there is none.
    [[nodiscard]] std::optional<Window> window() const;
    /// The pixels of a window, as the display gives them.
    [[nodiscard]] QByteArray picture(const Window& window) const;

    enum class Key : std::uint8_t { Escape = 9, Return = 36, Space = 65 };
    void press(const Window& window, Key key);
    /// Small letters of English, as its keyboard has them.
    void type(const Window& window, const char* letters);
    /// A point relative to the window.
    void click(const Window& window, const QPoint& point);

  private:
    [[nodiscard]] std::uint32_t root() const;
    void pressCode(const Window& window, std::uint8_t code);

    QProcess server_;
    QString name_;
    std::unique_ptr<xcb_connection_t, void (*)(xcb_connection_t*)> connection_;
};

}  // namespace zephyrix::testing
