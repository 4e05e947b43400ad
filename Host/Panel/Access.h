#pragma once

#include "Host/Panel/Server.h"

#include <optional>
#include <string>
#include <string_view>

namespace Host::Panel {

// What the server admits and how it answers, without sockets.

/// The head of a request, as the client wrote it.
struct Head {
    std::string_view method;
    std::string_view target;
    std::optional<std::string_view> host; ///< nothing if it is absent or repeated; so are the next two
    std::optional<std::string_view> origin;
    std::optional<std::string_view> authorization;
    bool hasOrigin = false; ///< also if it is repeated
    bool isUpgrade = false; ///< to a WebSocket
};

/// What to do with a request.
struct Decision {
    enum { Answer, Upgrade, Serve } action = Answer;
    Response response{}; ///< for Answer
    Request request{};   ///< for Serve, without body
};

/// Judges a request by its head alone, so that nothing more is read of one that is refused.
/// @param authority "127.0.0.1:41207"
[[nodiscard]] Decision Decide(const Head& head, std::string_view authority, std::string_view token);

/// An answer {"message": "one sentence"}.
[[nodiscard]] Response Message(unsigned int status, std::string_view message);

/// The head of an answer, with an empty line at its end.
[[nodiscard]] std::string PrintHead(const Response& response, std::string_view reason, bool keepAlive);

/// The fields that each answer has, by name and value: what a browser must not do with it.
struct Field {
    std::string_view name;
    std::string_view value;
};
[[nodiscard]] std::span<const Field> ProtectingFields();

/// Whether the first message of a client has the token.
[[nodiscard]] bool HasToken(const std::string& message, std::string_view token);

} // namespace Host::Panel
