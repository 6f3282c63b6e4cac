#pragma once

#include <QString>

/// The socket by which a start asks the panel that runs to show itself. To connect is the whole
/// request, to be disconnected the answer.
namespace zephyrix::StartSocket {

enum class Reply {
    Nobody,   // nobody listens there, or the path can be none
    Silence,  // somebody does, and did not answer within two seconds
    Heard,
};

/// Waits for two seconds at most to be let in, where many ask at once, and for two more to be
/// answered.
[[nodiscard]] Reply ask(const QString& path);

/// Listens there from now on, instead of whatever the path was before. Only the user can connect.
/// The socket, to be closed by the caller, which never blocks; -1 with errno when it cannot be
/// made: ENAMETOOLONG for a path of more than 107 bytes.
[[nodiscard]] int listen(const QString& path);

/// Answers all who wait at the listening socket; whether there was anyone.
[[nodiscard]] bool answer(int listening);

}  // namespace zephyrix::StartSocket
