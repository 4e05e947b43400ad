#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace Host::Panel {

/// A request for the interface, below /api/. Its Host, Origin, token and size are in order.
struct Request {
    std::string method; ///< "GET", "PUT", "POST"; the answer to HEAD is that to GET, the server leaves out its body
    std::string path;   ///< decoded, without query: "/api/functions/gain"
    std::string query;  ///< without "?", not decoded
    std::string body;
};

struct Response {
    unsigned int status = 200;
    std::string body;
    std::string type = "application/json";
    std::string file{};    ///< a name for a download, else empty
    std::string allowed{}; ///< with 405: "GET, PUT"
};

/// A client of the WebSocket that has shown the token. Never used twice.
using ClientId = std::uint64_t;

/// What the server serves. Called on the server's thread; must not wait.
class Service {
public:
    Service() = default;
    virtual ~Service() = default;
    Service(const Service&) = delete;
    Service& operator=(const Service&) = delete;

    /// @param respond to be called once, on any thread, sooner or later; does nothing if the client has gone, or the
    ///        server, or if it was called before. If it is never called, the client gets 500 when the last copy of it
    ///        has gone
    virtual void Handle(Request request, std::function<void(Response)> respond) = 0;
    virtual void Opened(ClientId client) = 0;
    /// @param text a message of the client after its token, of 64 KB at most; any valid UTF-8
    virtual void Received(ClientId client, std::string text) = 0;
    virtual void Closed(ClientId client) = 0;
};

/// A file of the page.
struct PageFile {
    std::string_view path; ///< "/panel.js"; "/" is the page itself
    std::string_view type; ///< "text/javascript"
    std::string_view content;
};

/// The files of the page, which are part of the program.
[[nodiscard]] std::span<const PageFile> PageFiles();

/// What a client may use. Tests need less time with smaller ones.
struct Limits {
    std::size_t connections = 8; ///< more clients wait
    std::size_t clients = 6;     ///< of the WebSocket, so that connections are left for requests; more are refused
    std::size_t header = 8 << 10;
    std::size_t body = 64 << 10;              ///< of a request, and of a message to the WebSocket
    std::size_t unsent = 8 << 20;             ///< of messages to a client
    std::chrono::milliseconds request{10000}; ///< from its first byte to its last; and without progress of an answer
    std::chrono::milliseconds idle{60000};    ///< between two requests; a WebSocket that does not answer pings
    std::chrono::milliseconds token{5000};    ///< until a client of the WebSocket has shown it
    /// If all connections are in use, those that wait for another request are closed. A new one is spared for this
    /// time.
    std::chrono::milliseconds fresh{1000};
};

/// A server of HTTP and WebSocket on 127.0.0.1, for this machine alone.
class Server {
public:
    /// Serves on a thread of its own, which may call the service before the constructor returns.
    /// @param port  0 for one that is free
    /// @param token what clients must show
    /// @throws OpenError if the port cannot be used
    Server(Service& served, std::uint16_t port, std::string token, const Limits& limits = {});
    /// Closes all connections. The service is not called any more, not even Closed.
    ~Server();
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

    [[nodiscard]] std::uint16_t Port() const;

    /// Sends a message to a client, in the order of the calls; on any thread. Does nothing if the client has gone. A
    /// client that does not take what is sent is disconnected.
    void SendText(ClientId client, std::string text);
    void SendBinary(ClientId client, std::shared_ptr<const std::string> bytes);

private:
    class Implementation;
    std::unique_ptr<Implementation> implementation;
};

/// A random token of 128 bits, in hexadecimal.
[[nodiscard]] std::string MakeToken();

} // namespace Host::Panel
