#include "Host/Panel/Server.h"

#include "Host/Errors.h"
#include "Host/Panel/Access.h"

#include <utility> // Asio 1.74 needs it and does not include it

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/post.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/http/parser.hpp>
#include <boost/beast/http/status.hpp>
#include <boost/beast/http/string_body.hpp>
#include <boost/beast/websocket/rfc6455.hpp>
#include <boost/beast/websocket/stream.hpp>

#include <algorithm>
#include <array>
#include <atomic>
#include <deque>
#include <exception>
#include <limits>
#include <map>
#include <mutex>
#include <optional>
#include <thread>

namespace Host::Panel {

namespace {

namespace asio = boost::asio;
namespace http = boost::beast::http;
namespace websocket = boost::beast::websocket;
using asio::ip::tcp;
using boost::beast::flat_buffer;
using Error = boost::system::error_code;
using Socket = tcp::socket;
using Timer = asio::steady_timer;
using Clock = std::chrono::steady_clock;
using Parser = http::request_parser<http::string_body>;
using Shared = std::shared_ptr<const std::string>;

constexpr std::chrono::milliseconds retry{50};      ///< of accepting a connection
constexpr std::chrono::milliseconds farewell{2000}; ///< for a client to close its end

constexpr std::size_t largestRead = 4 << 10;
constexpr std::size_t largestBuffer = 16 << 10; ///< more than a header and a read

/// The way to the server's thread, from any thread, also when the server has gone.
class Gate {
public:
    explicit Gate(asio::io_context& server) : context(&server) {}
    void Post(std::function<void()> work) {
        const std::lock_guard lock(mutex);
        if (context != nullptr) {
            asio::post(*context, std::move(work));
        }
    }
    void Close() {
        const std::lock_guard lock(mutex);
        context = nullptr;
    }

private:
    std::mutex mutex;
    asio::io_context* context;
};

/// A connection of either protocol. All members are used on the server's thread alone. Handlers of its operations keep
/// it alive; it is closed when the server forgets it.
class Connection {
public:
    Connection() = default;
    virtual ~Connection() = default;
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// Since when it has been of no use, if it may be closed for another one.
    [[nodiscard]] virtual std::optional<Clock::time_point> IdleSince() { return {}; }
    virtual void Answer(Response&&) {}
    virtual void Send(const Shared&, bool /*binary*/) {}
    [[nodiscard]] virtual bool IsWebSocket() const { return false; }
    virtual void Close() = 0;
};

/// The connections of a server, and what they share.
class Hub {
public:
    Hub(Service& served, std::uint16_t wanted, std::string secret, const Limits& allowed);

    void Run() { context.run(); }
    /// On any thread.
    void Stop();
    [[nodiscard]] const std::shared_ptr<Gate>& Entrance() const { return gate; }
    [[nodiscard]] std::uint16_t Port() const { return port; }

    void Send(ClientId id, const Shared& bytes, bool binary);
    void Answer(ClientId id, Response response);
    void Forget(ClientId id) { connections.erase(id); }
    void Upgrade(Socket socket, const http::request<http::string_body>& request);
    [[nodiscard]] bool HasRoomForWebSocket() const;

    Service& service;
    const std::string token;
    const Limits limits;
    std::string authority; ///< "127.0.0.1:41207"

private:
    void Accept();
    void Admit();
    bool MakeRoom();

    asio::io_context context{1};
    std::shared_ptr<Gate> gate = std::make_shared<Gate>(context);
    tcp::acceptor acceptor{context};
    Timer again{context};
    std::uint16_t port = 0;
    ClientId last = 0;
    std::map<ClientId, std::shared_ptr<Connection>> connections;
};

/// The answer to one request. It can be given once; dropped, it is an error.
class PendingAnswer {
public:
    PendingAnswer(Hub& server, ClientId client) : hub(server), gate(server.Entrance()), id(client) {}
    ~PendingAnswer() { Give(Message(500, "the request was not answered")); }
    PendingAnswer(const PendingAnswer&) = delete;
    PendingAnswer& operator=(const PendingAnswer&) = delete;

    void Give(Response response) {
        if (!given.exchange(true)) {
            gate->Post([&server = hub, client = id, answer = std::move(response)]() mutable {
                server.Answer(client, std::move(answer));
            });
        }
    }

private:
    Hub& hub; ///< used behind the gate alone
    std::shared_ptr<Gate> gate;
    ClientId id;
    std::atomic<bool> given = false;
};

/// One request after the other. Nothing is read while one is answered.
class HttpConnection : public Connection, public std::enable_shared_from_this<HttpConnection> {
public:
    HttpConnection(Hub& server, ClientId client, Socket accepted)
        : hub(server),
          id(client),
          socket(std::move(accepted)),
          timer(socket.get_executor()),
          idleSince(Clock::now() + server.limits.fresh) {}

    void Await();
    std::optional<Clock::time_point> IdleSince() override;
    void Answer(Response&& response) override;
    void Close() override;

private:
    using Step = void (HttpConnection::*)();

    void Begin();
    void Read();
    void Parse();
    void TakeHead();
    void Serve();
    void RefuseUnreadable(Error error);
    void Write();
    void Drain();
    [[nodiscard]] Head TakenHead() const;
    void When(Socket::wait_type possible, Step step);
    void SetDeadline(std::chrono::milliseconds time);

    Hub& hub;
    const ClientId id;
    Socket socket; ///< never blocks
    Timer timer;
    flat_buffer buffer{largestBuffer}; ///< what was received and not parsed
    std::optional<Parser> parser;      ///< of one request
    std::optional<Request> request;    ///< that is served when its body is complete
    std::string head, body;            ///< of the answer
    std::size_t written = 0;           ///< of both
    bool keepAlive = false;
    std::optional<Clock::time_point> idleSince; ///< in the future for a new connection
};

/// Goes on when the socket can be read or written. The connection lives until then.
void HttpConnection::When(Socket::wait_type possible, Step step) {
    socket.async_wait(
        possible, [self = shared_from_this(), step](Error error) { error ? self->Close() : (self.get()->*step)(); });
}

void HttpConnection::SetDeadline(std::chrono::milliseconds time) {
    timer.expires_after(time);
    timer.async_wait([self = shared_from_this()](Error error) {
        if (!error && self->timer.expiry() <= Clock::now()) { // else it was renewed meanwhile
            self->Close();
        }
    });
}

void HttpConnection::Close() {
    Error ignored;
    socket.close(ignored);
    timer.cancel();
    hub.Forget(id);
}

std::optional<Clock::time_point> HttpConnection::IdleSince() {
    Error error;
    const bool isUnread = socket.available(error) > 0;
    return isUnread || idleSince > Clock::now() ? std::nullopt : idleSince;
}

/// Waits for a request, which may be there already.
void HttpConnection::Await() {
    parser.emplace();
    parser->header_limit(static_cast<std::uint32_t>(hub.limits.header));
    parser->body_limit(std::numeric_limits<std::uint64_t>::max()); // judged when the head is known
    if (buffer.size() > 0) {                                       // after the others, and not deeper and deeper
        asio::post(socket.get_executor(), [self = shared_from_this()] { self->Begin(); });
        return;
    }
    SetDeadline(hub.limits.idle);
    When(Socket::wait_read, &HttpConnection::Begin);
}

void HttpConnection::Begin() {
    idleSince.reset();
    SetDeadline(hub.limits.request);
    buffer.size() > 0 ? Parse() : Read();
}

void HttpConnection::Read() {
    Error error;
    const std::size_t room = std::min(buffer.max_size() - buffer.size(), largestRead);
    buffer.commit(socket.read_some(buffer.prepare(room), error));
    if (error && error != asio::error::would_block) {
        Close(); // the client has gone
        return;
    }
    Parse();
}

void HttpConnection::Parse() {
    Error error;
    while (!parser->is_done() && buffer.size() > 0 && !error) {
        const bool isBody = parser->is_header_done();
        buffer.consume(parser->put(buffer.data(), error));
        if (!isBody && parser->is_header_done()) {
            TakeHead();
            return;
        }
    }
    if (parser->is_done()) {
        Serve();
    } else if (error && error != http::error::need_more) {
        RefuseUnreadable(error);
    } else if (buffer.size() == buffer.max_size()) {
        RefuseUnreadable(http::error::header_limit); // of a part of the body
    } else {
        When(Socket::wait_read, &HttpConnection::Read);
    }
}

Head HttpConnection::TakenHead() const {
    const auto& message = parser->get();
    const auto view = [](boost::beast::string_view text) { return std::string_view(text.data(), text.size()); };
    const auto only = [&](http::field name) -> std::optional<std::string_view> {
        return message.count(name) == 1 ? std::optional(view(message[name])) : std::nullopt;
    };
    return {view(message.method_string()), view(message.target()),           only(http::field::host),
            only(http::field::origin),     only(http::field::authorization), message.count(http::field::origin) > 0,
            websocket::is_upgrade(message)};
}

void HttpConnection::TakeHead() {
    Decision decision = Decide(TakenHead(), hub.authority, hub.token);
    if (decision.action == Decision::Answer) {
        Answer(std::move(decision.response));
    } else if (decision.action == Decision::Upgrade && !hub.HasRoomForWebSocket()) {
        Answer(Message(503, "too many pages are open"));
    } else if (decision.action == Decision::Upgrade && buffer.size() > 0) {
        Answer(Message(400, "a WebSocket starts after the answer"));
    } else if (decision.action == Decision::Upgrade) {
        hub.Upgrade(std::move(socket), parser->get());
        Close();
    } else if (parser->content_length().value_or(0) > hub.limits.body) {
        RefuseUnreadable(http::error::body_limit);
    } else {
        request = std::move(decision.request);
        parser->body_limit(hub.limits.body);
        parser->eager(true);
        if (!parser->is_done() && boost::beast::iequals(parser->get()[http::field::expect], "100-continue")) {
            Error ignored; // a client that misses it sends the body a little later
            socket.write_some(asio::buffer("HTTP/1.1 100 Continue\r\n\r\n", 25), ignored);
        }
        Parse();
    }
}

void HttpConnection::Serve() {
    timer.cancel(); // the service sees to it that it answers in time
    request->body = std::move(parser->get().body());
    const auto answer = std::make_shared<PendingAnswer>(hub, id);
    try {
        hub.service.Handle(std::move(*request), [answer](Response response) { answer->Give(std::move(response)); });
    } catch (const std::exception& error) {
        answer->Give(Message(500, error.what()));
    }
}

void HttpConnection::RefuseUnreadable(Error error) {
    if (error == http::error::header_limit) {
        Answer(Message(431, "the header is too large"));
    } else if (error == http::error::body_limit) {
        Answer(Message(413, "the body is too large"));
    } else {
        Answer(Message(400, "not a request of HTTP: " + error.message()));
    }
}

void HttpConnection::Answer(Response&& response) {
    keepAlive = parser->is_done() && parser->keep_alive();
    const auto reason = http::obsolete_reason(http::int_to_status(response.status));
    head = PrintHead(response, std::string_view(reason.data(), reason.size()), keepAlive);
    body = parser->get().method() == http::verb::head ? std::string() : std::move(response.body);
    written = 0;
    Write();
}

void HttpConnection::Write() {
    const std::array<asio::const_buffer, 2> parts = {
        asio::buffer(head) + written, asio::buffer(body) + (std::max(written, head.size()) - head.size())};
    Error error;
    written += socket.write_some(parts, error);
    if (error && error != asio::error::would_block) {
        Close(); // the client has gone
    } else if (written < head.size() + body.size()) {
        SetDeadline(hub.limits.request);
        When(Socket::wait_write, &HttpConnection::Write);
    } else if (keepAlive) {
        idleSince = Clock::now();
        Await();
    } else {
        socket.shutdown(Socket::shutdown_send, error);
        SetDeadline(farewell);
        idleSince = Clock::now();
        Drain();
    }
}

/// Reads what the client still sends. If the connection were closed with something unread, the client would lose the
/// answer.
void HttpConnection::Drain() {
    std::array<char, largestRead> ignored; // NOLINT(cppcoreguidelines-pro-type-member-init): it is never used
    Error error;
    socket.read_some(asio::buffer(ignored), error);
    if (error && error != asio::error::would_block) {
        Close();
    } else {
        When(Socket::wait_read, &HttpConnection::Drain);
    }
}

/// A client of the WebSocket.
class WebSocketClient : public Connection, public std::enable_shared_from_this<WebSocketClient> {
public:
    WebSocketClient(Hub& server, ClientId client, Socket accepted)
        : hub(server),
          id(client),
          stream(std::move(accepted)),
          timer(stream.get_executor()) {}

    void Open(const http::request<http::string_body>& request);
    void Send(const Shared& bytes, bool binary) override;
    [[nodiscard]] bool IsWebSocket() const override { return true; }
    void Close() override;

private:
    struct Unsent {
        Shared bytes;
        bool binary;
    };
    void Read();
    void Take(std::string text);
    void End(websocket::close_code code, const char* reason);
    void Write();

    template <typename Handler> auto Keep(Handler handler) {
        return [self = shared_from_this(), handler](Error error, auto... more) { handler(error, more...); };
    }

    Hub& hub;
    const ClientId id;
    websocket::stream<Socket, false> stream;
    Timer timer;
    flat_buffer buffer;
    bool isKnown = false;     ///< has shown the token
    bool isEnding = false;    ///< takes part in nothing any more
    std::deque<Unsent> queue; ///< the first is being sent
    std::size_t unsent = 0;
};

void WebSocketClient::Open(const http::request<http::string_body>& request) {
    stream.set_option(websocket::stream_base::timeout{farewell, hub.limits.idle, true});
    stream.set_option(websocket::stream_base::decorator([](websocket::response_type& response) {
        for (const Field& field : ProtectingFields()) {
            response.set(boost::beast::string_view(field.name.data(), field.name.size()),
                         boost::beast::string_view(field.value.data(), field.value.size()));
        }
        response.set(http::field::server, "qdv12host");
        if (response.result() != http::status::switching_protocols) {
            const Response refusal = Message(response.result_int(), response.body());
            response.body() = refusal.body;
            response.set(http::field::content_type, refusal.type);
            response.keep_alive(false);
            response.prepare_payload();
        }
    }));
    stream.read_message_max(hub.limits.body);
    stream.auto_fragment(false);
    timer.expires_after(hub.limits.token);
    timer.async_wait(Keep([this](Error error) {
        if (!error && !isKnown) {
            End(websocket::close_code::policy_error, "no token");
        }
    }));
    stream.async_accept(request, Keep([this](Error error) { error ? Close() : Read(); }));
}

void WebSocketClient::Read() {
    stream.async_read(buffer, Keep([this](Error error, std::size_t) {
                          if (error) {
                              Close();
                              return;
                          }
                          const auto bytes = buffer.data();
                          std::string text(static_cast<const char*>(bytes.data()), bytes.size());
                          buffer.consume(bytes.size());
                          Take(std::move(text));
                      }));
}

void WebSocketClient::Take(std::string text) {
    if (stream.got_binary()) {
        End(websocket::close_code::unknown_data, "not a text");
        return;
    }
    if (!isKnown && !HasToken(text, hub.token)) {
        End(websocket::close_code::policy_error, "no token");
        return;
    }
    try {
        if (isKnown) {
            hub.service.Received(id, std::move(text));
        } else {
            isKnown = true;
            timer.cancel();
            hub.service.Opened(id);
        }
    } catch (const std::exception&) {
        End(websocket::close_code::internal_error, "a message could not be handled");
        return;
    }
    Read();
}

void WebSocketClient::Send(const Shared& bytes, bool binary) {
    if (!isKnown || isEnding) {
        return;
    }
    unsent += bytes->size();
    if (unsent > hub.limits.unsent) {
        Close();
        return;
    }
    queue.push_back({bytes, binary});
    if (queue.size() == 1) {
        Write();
    }
}

void WebSocketClient::Write() {
    stream.binary(queue.front().binary);
    stream.async_write(asio::buffer(*queue.front().bytes), Keep([this](Error error, std::size_t size) {
                           if (error) {
                               Close();
                               return;
                           }
                           unsent -= size;
                           queue.pop_front();
                           if (!queue.empty() && !isEnding) {
                               Write();
                           }
                       }));
}

/// Says why, and closes after the client has acknowledged it.
void WebSocketClient::End(websocket::close_code code, const char* reason) {
    if (!std::exchange(isEnding, true)) {
        stream.async_close({code, reason}, Keep([this](Error) { Close(); }));
    }
}

void WebSocketClient::Close() {
    isEnding = true;
    Error ignore;
    stream.next_layer().close(ignore);
    timer.cancel();
    hub.Forget(id);
    if (std::exchange(isKnown, false)) {
        hub.service.Closed(id);
    }
}

Hub::Hub(Service& served, std::uint16_t wanted, std::string secret, const Limits& allowed)
    : service(served),
      token(std::move(secret)),
      limits(allowed) {
    const tcp::endpoint at(asio::ip::address_v4::loopback(), wanted);
    try {
        acceptor.open(at.protocol());
        acceptor.set_option(tcp::acceptor::reuse_address(true)); // of connections of an earlier process
        acceptor.bind(at);
        acceptor.set_option(tcp::acceptor::enable_connection_aborted(true)); // else it would wait for the next one
        acceptor.listen();
        acceptor.non_blocking(true);
        port = acceptor.local_endpoint().port();
    } catch (const boost::system::system_error& error) {
        throw OpenError("port " + std::to_string(wanted) + " cannot be used: " + error.code().message());
    }
    authority = "127.0.0.1:" + std::to_string(port);
    Accept();
}

void Hub::Stop() {
    gate->Close();
    context.stop();
}

void Hub::Accept() {
    acceptor.async_wait(tcp::acceptor::wait_read, [this](Error error) {
        if (!error) {
            Admit();
        }
    });
}

/// Accepts a client that waits. If there is no room, tries again later.
void Hub::Admit() {
    Error error = asio::error::no_buffer_space;
    Socket socket(context);
    if (connections.size() < limits.connections || MakeRoom()) {
        acceptor.accept(socket, error);
    }
    if (!error) {
        socket.non_blocking(true, error);
        socket.set_option(tcp::no_delay(true), error);
        const auto connection = std::make_shared<HttpConnection>(*this, ++last, std::move(socket));
        connections.emplace(last, connection);
        connection->Await();
    }
    if (!error || error == asio::error::would_block || error == asio::error::connection_aborted) {
        Accept();
        return;
    }
    again.expires_after(retry);
    again.async_wait([this](Error stopped) {
        if (!stopped) {
            Admit();
        }
    });
}

/// Closes the connection that has been idle longest.
bool Hub::MakeRoom() {
    std::shared_ptr<Connection> idlest;
    std::optional<Clock::time_point> since;
    for (const auto& [id, connection] : connections) {
        const auto idle = connection->IdleSince();
        if (idle && (!since || *idle < *since)) {
            idlest = connection;
            since = idle;
        }
    }
    if (idlest) {
        idlest->Close();
    }
    return idlest != nullptr;
}

bool Hub::HasRoomForWebSocket() const {
    std::size_t count = 0;
    for (const auto& [id, connection] : connections) {
        count += connection->IsWebSocket() ? 1U : 0U;
    }
    return count < limits.clients;
}

void Hub::Upgrade(Socket socket, const http::request<http::string_body>& request) {
    const auto client = std::make_shared<WebSocketClient>(*this, ++last, std::move(socket));
    connections.emplace(last, client);
    client->Open(request);
}

void Hub::Answer(ClientId id, Response response) {
    if (const auto found = connections.find(id); found != connections.end()) {
        const auto connection = found->second;
        connection->Answer(std::move(response));
    }
}

void Hub::Send(ClientId id, const Shared& bytes, bool binary) {
    if (const auto found = connections.find(id); found != connections.end()) {
        const auto connection = found->second; // it may close itself
        connection->Send(bytes, binary);
    }
}

} // namespace

class Server::Implementation {
public:
    Implementation(Service& served, std::uint16_t port, std::string token, const Limits& limits)
        : hub(served, port, std::move(token), limits),
          thread([this] { hub.Run(); }) {}
    ~Implementation() {
        hub.Stop();
        thread.join();
    }
    Implementation(const Implementation&) = delete;
    Implementation& operator=(const Implementation&) = delete;

    void Send(ClientId client, Shared bytes, bool binary) {
        hub.Entrance()->Post([this, client, bytes = std::move(bytes), binary] { hub.Send(client, bytes, binary); });
    }
    [[nodiscard]] std::uint16_t Port() const { return hub.Port(); }

private:
    Hub hub;
    std::thread thread;
};

Server::Server(Service& served, std::uint16_t port, std::string token, const Limits& limits)
    : implementation(std::make_unique<Implementation>(served, port, std::move(token), limits)) {}

Server::~Server() = default;

std::uint16_t Server::Port() const { return implementation->Port(); }

void Server::SendText(ClientId client, std::string text) {
    implementation->Send(client, std::make_shared<const std::string>(std::move(text)), false);
}

void Server::SendBinary(ClientId client, std::shared_ptr<const std::string> bytes) {
    implementation->Send(client, std::move(bytes), true);
}

} // namespace Host::Panel
