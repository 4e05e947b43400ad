#include "Host/Panel/Access.h"

#include "Host/Json.h"

#include <sys/random.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cerrno>
#include <charconv>
#include <cstddef>
#include <exception>
#include <system_error>

namespace Host::Panel {

namespace {

/// Takes the same time wherever the texts differ, so that a token cannot be guessed character by character.
bool IsSame(std::string_view given, std::string_view secret) {
    if (given.size() != secret.size()) {
        return false;
    }
    volatile unsigned char different = 0;
    for (std::size_t i = 0; i < secret.size(); ++i) {
        different = static_cast<unsigned char>(different | (given[i] ^ secret[i]));
    }
    return different == 0;
}

bool IsControl(char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }

/// Nothing for an invalid escape, and for one that hides a separator or a control character.
std::optional<std::string> Decoded(std::string_view escaped) {
    std::string text;
    for (std::size_t i = 0; i < escaped.size(); ++i) {
        if (escaped[i] != '%') {
            text += escaped[i];
            continue;
        }
        unsigned char code = 0;
        const std::string_view digits = escaped.substr(i + 1, 2);
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), code, 16);
        const char c = static_cast<char>(code);
        if (digits.size() != 2 || end != digits.data() + 2 || error != std::errc() || c == '/' || IsControl(c)) {
            return {};
        }
        text += c;
        i += 2;
    }
    return text;
}

Response Refuse(unsigned int status, std::string_view message, std::string_view allowed) {
    Response response = Message(status, message);
    response.allowed = allowed;
    return response;
}

Response AnswerWithPage(std::string_view method, std::string_view path) {
    const auto files = PageFiles();
    const auto file = std::find_if(files.begin(), files.end(), [&](const PageFile& one) { return one.path == path; });
    if (file == files.end()) {
        return Message(404, "there is no such page");
    }
    if (method != "GET" && method != "HEAD") {
        return Refuse(405, "a page can only be read", "GET, HEAD");
    }
    return {200, std::string(file->content), std::string(file->type)};
}

/// A name for a download: no folder, nothing that a shell or a header reads as more than a letter, not hidden.
std::string Harmless(std::string_view name) {
    std::string safe(name.substr(0, 100));
    std::replace_if(
        safe.begin(), safe.end(),
        [](char c) { return std::isalnum(static_cast<unsigned char>(c)) == 0 && c != '-' && c != '_' && c != '.'; },
        '_');
    return safe.front() == '.' ? '_' + safe : safe;
}

} // namespace

Decision Decide(const Head& head, std::string_view authority, std::string_view token) {
    const std::string site = "http://" + std::string(authority);
    const auto refuse = [](unsigned int status, std::string_view message) {
        return Decision{Decision::Answer, Message(status, message)};
    };
    if (head.host != authority) {
        return refuse(421, "open " + site);
    }
    if (head.hasOrigin && head.origin != site) {
        return refuse(403, "other pages have no access");
    }
    const std::size_t end = std::min(head.target.find('?'), head.target.size());
    const auto path = Decoded(head.target.substr(0, end));
    if (!path || !path->starts_with('/')) {
        return refuse(400, "the path is invalid");
    }
    if (*path != "/api" && !path->starts_with("/api/")) {
        return {Decision::Answer, AnswerWithPage(head.method, *path)};
    }
    if (*path == "/api/events") {
        return head.isUpgrade ? Decision{Decision::Upgrade} : refuse(400, "/api/events is a WebSocket");
    }
    static constexpr std::string_view scheme = "Bearer ";
    if (!head.authorization || !head.authorization->starts_with(scheme) ||
        !IsSame(head.authorization->substr(scheme.size()), token)) {
        return refuse(401, "the token is missing or wrong");
    }
    const std::string_view method = head.method == "HEAD" ? "GET" : head.method; // the body is left out at the end
    if (method != "GET" && method != "PUT" && method != "POST") {
        return {Decision::Answer, Refuse(405, "there is no such method", "GET, HEAD, PUT, POST")};
    }
    const std::size_t query = std::min(end + 1, head.target.size());
    return {Decision::Serve, {}, {std::string(method), *path, std::string(head.target.substr(query)), {}}};
}

Response Message(unsigned int status, std::string_view message) {
    return {status, Json{{"message", message}}.PrintInOneLine()};
}

std::span<const Field> ProtectingFields() {
    static constexpr std::array fields = {
        Field{"Content-Security-Policy",
              "default-src 'none'; script-src 'self'; style-src 'self'; img-src 'self' blob:; "
              "connect-src 'self'; frame-ancestors 'none'; base-uri 'none'"},
        Field{"X-Content-Type-Options", "nosniff"},
        Field{"Referrer-Policy", "no-referrer"},
        Field{"Cross-Origin-Resource-Policy", "same-origin"},
        Field{"Cache-Control", "no-store"},
    };
    return fields;
}

std::string PrintHead(const Response& response, std::string_view reason, bool keepAlive) {
    std::string text = "HTTP/1.1 " + std::to_string(response.status) + ' ' + std::string(reason) + "\r\n";
    const auto add = [&](std::string_view name, std::string_view value) {
        text.append(name).append(": ").append(value).append("\r\n");
    };
    add("Content-Type", response.type);
    add("Content-Length", std::to_string(response.body.size()));
    for (const Field& field : ProtectingFields()) {
        add(field.name, field.value);
    }
    if (!response.file.empty()) {
        add("Content-Disposition", "attachment; filename=\"" + Harmless(response.file) + '"');
    }
    if (response.status == 401) {
        add("WWW-Authenticate", "Bearer");
    }
    if (!response.allowed.empty()) {
        add("Allow", response.allowed);
    }
    add("Connection", keepAlive ? "keep-alive" : "close");
    return text + "\r\n";
}

bool HasToken(const std::string& message, std::string_view token) {
    try {
        const Json document = Json::Parse(message);
        const std::string* const given = document["token"].Text();
        return given != nullptr && IsSame(*given, token);
    } catch (const std::exception&) { // not JSON
        return false;
    }
}

std::string MakeToken() {
    std::array<unsigned char, 16> bytes{};
    if (getrandom(bytes.data(), bytes.size(), 0) != static_cast<ssize_t>(bytes.size())) {
        throw std::system_error(errno, std::generic_category(), "no random numbers");
    }
    std::string token;
    for (const unsigned char byte : bytes) {
        static constexpr std::string_view digits = "0123456789abcdef";
        token += digits[byte / 16];
        token += digits[byte % 16];
    }
    return token;
}

} // namespace Host::Panel
