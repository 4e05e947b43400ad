// The server of the control panel, in front of a service that this test provides.

#include "Host/Errors.h"
#include "Host/Panel/Server.h"
#include "Tests/Support/WebClient.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <filesystem>
#include <functional>
#include <iterator>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace Scenario {

namespace {

using namespace Host::Panel;
using namespace std::string_literals;
using Test::WebClient;
using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

/// Records what it is asked, as one line each. Answers on its path.
class FakeService : public Service {
public:
    void Handle(Request request, std::function<void(Response)> respond) override {
        if (request.path == "/api/late") {
            const std::lock_guard lock(mutex);
            late.push_back(std::move(respond));
        } else if (request.path == "/api/large") {
            respond({200, std::string(16 << 20, 'x'), "image/png", "../my \"picture\"\r\n.png"});
        } else if (request.path == "/api/thrown") {
            throw std::runtime_error("lost");
        } else if (request.path != "/api/dropped") {
            respond({200, request.method + ' ' + request.path + '?' + request.query + ' ' + request.body});
        }
        Note(request.path);
    }
    void Opened(ClientId client) override { Note("opened " + std::to_string(last = client)); }
    void Received(ClientId client, std::string text) override { Note(std::to_string(client) + ' ' + text); }
    void Closed(ClientId client) override { Note("closed " + std::to_string(client)); }

    /// The next line, or an empty one after a long time.
    std::string Next() {
        std::unique_lock lock(mutex);
        changed.wait_for(lock, std::chrono::seconds(10), [&] { return !notes.empty(); });
        if (notes.empty()) {
            return "";
        }
        std::string note = std::move(notes.front());
        notes.pop_front();
        return note;
    }
    bool HasNothing() {
        const std::lock_guard lock(mutex);
        return notes.empty();
    }
    std::function<void(Response)> TakeLate() {
        EXPECT_EQ(Next(), "/api/late");
        const std::lock_guard lock(mutex);
        auto respond = std::move(late.front());
        late.pop_front();
        return respond;
    }
    ClientId last = 0;

private:
    void Note(const std::string& line) {
        const std::lock_guard lock(mutex);
        notes.push_back(line);
        changed.notify_all();
    }

    std::mutex mutex;
    std::condition_variable changed;
    std::deque<std::string> notes;
    std::deque<std::function<void(Response)>> late;
};

class PanelServer : public testing::Test {
protected:
    void Serve(const Limits& limits = {}) {
        server.emplace(service, std::uint16_t{0}, "secret", limits);
        site = "127.0.0.1:" + std::to_string(server->Port());
    }
    /// A request in order, with more lines for its head.
    [[nodiscard]] std::string Ask(const std::string& line, const std::string& more = "", bool known = true) const {
        return line + " HTTP/1.1\r\nHost: " + site + "\r\n" + (known ? "Authorization: Bearer secret\r\n" : "") + more +
               "\r\n";
    }
    [[nodiscard]] std::string Upgrade(const std::string& more = "") const {
        return Ask("GET /api/events",
                   "Connection: keep-alive, Upgrade\r\nUpgrade: websocket\r\nSec-WebSocket-Version: 13\r\n"
                   "Sec-WebSocket-Key: dGhlIHNhbXBsZSBub25jZQ==\r\n" +
                       more,
                   false);
    }
    /// Connects a client that has shown the token.
    std::unique_ptr<WebClient> Open() {
        auto client = std::make_unique<WebClient>(server->Port());
        EXPECT_EQ(client->Request(Upgrade("Origin: http://" + site + "\r\n")).status, 101);
        client->SendFrame(1, R"({"token": "secret"})");
        const std::string opened = service.Next();
        EXPECT_EQ(opened, "opened " + std::to_string(service.last));
        return client;
    }

    FakeService service;
    std::optional<Server> server;
    std::string site; ///< "127.0.0.1:41207"
};

TEST_F(PanelServer, ServesThePageWithoutTokenAndProtected) {
    Serve();
    WebClient client(server->Port());
    const auto page = client.Request(Ask("GET /?x", "", false));
    EXPECT_EQ(page.status, 200);
    EXPECT_NE(page.body.find("<!DOCTYPE html>"), std::string::npos);
    const std::string policy = "default-src 'none'; script-src 'self'; style-src 'self'; img-src 'self' blob:; "
                               "connect-src 'self'; frame-ancestors 'none'; base-uri 'none'";
    for (const std::string& field :
         {"Content-Security-Policy: " + policy + "\r\n"s, "Content-Type: text/html; charset=utf-8\r\n"s,
          "X-Content-Type-Options: nosniff\r\n"s, "Referrer-Policy: no-referrer\r\n"s,
          "Cross-Origin-Resource-Policy: same-origin\r\n"s, "Cache-Control: no-store\r\n"s}) {
        EXPECT_NE(page.head.find(field), std::string::npos) << field << page.head;
    }
    client.Send(Ask("HEAD /", "", false)); // on the same connection
    EXPECT_EQ(client.Receive(false).head, page.head);
    EXPECT_EQ(client.Request(Ask("GET /icon.svg", "Origin: http://" + site + "\r\n", false)).status, 200);
    const auto wrong = client.Request(Ask("PUT /"));
    EXPECT_EQ(wrong.status, 405);
    EXPECT_NE(wrong.head.find("Allow: GET, HEAD\r\n"), std::string::npos);
    EXPECT_TRUE(service.HasNothing());
}

TEST_F(PanelServer, AnswersBadRequestsItself) {
    Serve();
    const std::string head = " /api/x HTTP/1.1\r\n";
    const std::string host = "Host: " + site + "\r\n";
    const std::string token = "Authorization: Bearer secret\r\n";
    const std::string chunked = "Transfer-Encoding: chunked\r\n";
    const struct {
        int status;
        std::string request;
    } requests[] = {
        {421, "GET" + head + token + "\r\n"},
        {421, "GET" + head + token + "Host: localhost" + site.substr(9) + "\r\n\r\n"},
        {421, "GET" + head + token + "Host: 127.0.0.1\r\n\r\n"},
        {421, "GET" + head + token + "Host: evil\r\n" + host + "\r\n"},
        {421, "GET / HTTP/1.0\r\n\r\n"},
        {403, Ask("GET /api/x", "Origin: http://evil\r\n")},
        {403, Ask("GET /", "Origin: null\r\n")},
        {403, Ask("GET /api/x", "Origin: https://" + site + "\r\n")},
        {403, Ask("GET /api/x", "Origin: http://" + site + "\r\nOrigin: http://evil\r\n")},
        {403, Upgrade("Origin: http://evil\r\n")},
        {401, Ask("GET /api/x", "", false)},
        {401, Ask("GET /api/x", "Authorization: Bearer secre\r\n", false)},
        {401, Ask("GET /api/x", "Authorization: Bearer secretx\r\n", false)},
        {401, Ask("GET /api/x", "Authorization: Bearer Secret\r\n", false)},
        {401, Ask("GET /api/x", "Authorization: secret\r\n", false)},
        {401, Ask("GET /api/x", "Authorization: Bearer wrong\r\n")},
        {401, Ask("GET /%61pi/x?token=secret", "", false)},
        {400, Ask("GET /api/events")},
        {400, Ask("GET http://" + site + "/api/x")},
        {400, Ask("GET /api/a%2fb")},
        {400, Ask("GET /api/a%00b")},
        {400, Ask("GET /api/a%4")},
        {400, Ask("GET /api/a%+1")},
        {400, "PUT" + head + host + token + "Content-Length: 1\r\n" + chunked + "\r\n0\r\n\r\n"},
        {400, "PUT" + head + host + token + "Content-Length: -1\r\n\r\n"},
        {400, "PUT" + head + host + token + chunked + "\r\nno chunk\r\n"},
        {400, "PRI * HTTP/2.0\r\n\r\nSM\r\n\r\n"},
        {400, std::string("\x16\x03\x01\x02\x00\x01\x00\x01\xfc\x03\x03\r\n\r\n", 15)}, // TLS
        {404, Ask("GET /../etc/passwd", "", false)},
        {404, Ask("GET /index.html%20", "", false)},
        {405, Ask("DELETE /api/x")},
        {405, Ask("OPTIONS /api/x")},
        {413, Ask("PUT /api/x", "Content-Length: 65537\r\n")},
        {413, Ask("PUT /api/x", chunked) + "10001\r\n" + std::string(0x10001, ' ')},
        {413, Ask("PUT /api/x", "Content-Length: 4000000\r\n") + std::string(4000000, ' ')},
        {431, Ask("GET /", "X: " + std::string(8200, 'x') + "\r\n")},
        {431, Ask("PUT /api/x", chunked) + "1;" + std::string(20000, 'x')},
        {426, Ask("GET /api/events", "Connection: Upgrade\r\nUpgrade: websocket\r\nSec-WebSocket-Key: x\r\n"
                                     "Sec-WebSocket-Version: 12\r\n")},
    };
    for (const auto& [status, request] : requests) {
        const auto answer = WebClient(server->Port()).Request(request);
        EXPECT_EQ(answer.status, status) << request.substr(0, 300);
        EXPECT_EQ(answer.body.substr(0, 12), "{\"message\":\"") << request.substr(0, 300);
        EXPECT_NE(answer.head.find("Content-Security-Policy: default-src 'none'; "), std::string::npos);
    }
    EXPECT_TRUE(service.HasNothing());
}

TEST_F(PanelServer, PassesRequestsOnHoweverTheyArrive) {
    Serve();
    WebClient client(server->Port());
    const std::string body(65536, 'b');
    EXPECT_EQ(client.Request(Ask("PUT /api/a%20b%25?dry-run&x=%20", "Content-Length: 65536\r\n") + body).body,
              "PUT /api/a b%?dry-run&x=%20 " + body);
    EXPECT_EQ(
        client.Request(Ask("POST /api/x", "Transfer-Encoding: chunked\r\n") + "2;ext\r\nab\r\n1\r\nc\r\n0\r\n\r\n")
            .body,
        "POST /api/x? abc");
    client.Send(Ask("PUT /api/x", "Expect: 100-continue\r\nContent-Length: 2\r\n"));
    EXPECT_EQ(client.Receive().status, 100);
    EXPECT_EQ(client.Request("ab").body, "PUT /api/x? ab");
    for (const char byte : Ask("GET /api/slowly")) {
        client.Send({&byte, 1});
    }
    EXPECT_EQ(client.Receive().body, "GET /api/slowly? ");
    std::string pipelined;
    for (int i = 0; i < 500; ++i) {
        pipelined += Ask("GET /api/" + std::to_string(i));
    }
    client.Send(pipelined);
    for (int i = 0; i < 500; ++i) {
        ASSERT_EQ(client.Receive().body, "GET /api/" + std::to_string(i) + "? ");
    }
    client.Send(Ask("GET /api/last") + "GET /api/half");
    client.EndSending();
    EXPECT_EQ(client.Receive().body, "GET /api/last? ");
    EXPECT_EQ(client.ReceiveAll(), "");
    WebClient download(server->Port());
    const auto large = download.Request(Ask("GET /api/large"));
    EXPECT_EQ(large.body.size(), 16U << 20);
    EXPECT_NE(large.head.find("Content-Disposition: attachment; filename=\"_.._my__picture___.png\"\r\n"),
              std::string::npos)
        << large.head;
    EXPECT_EQ(download.Request(Ask("GET /api/thrown")).body, R"({"message":"lost"})");
    EXPECT_EQ(download.Request(Ask("GET /api/dropped")).status, 500);
}

TEST_F(PanelServer, TakesAnAnswerOnAnyThreadAtAnyTime) {
    const auto threads = [] { return std::distance(std::filesystem::directory_iterator("/proc/self/task"), {}); };
    const auto before = threads();
    Serve();
    WebClient client(server->Port());
    client.Send(Ask("GET /api/late"));
    const auto first = service.TakeLate();
    std::thread([&] {
        first({200, "late"});
        first({200, "twice"});
    }).join();
    EXPECT_EQ(client.Receive().body, "late");
    {
        WebClient gone(server->Port());
        gone.Send(Ask("GET /api/late"));
    }
    service.TakeLate()({200, "to nobody"});
    client.Send(Ask("GET /api/late"));
    const auto last = service.TakeLate();
    const auto tab = Open();
    server.reset();
    EXPECT_EQ(client.ReceiveAll(), "");
    EXPECT_EQ(tab->ReceiveAll(), "");
    EXPECT_EQ(threads(), before);
    last({200, "too late"});
    EXPECT_TRUE(service.HasNothing());
}

TEST_F(PanelServer, LetsNobodyKeepItFromOthers) {
    Limits limits;
    limits.request = limits.token = milliseconds(200);
    limits.fresh = milliseconds(100);
    Serve(limits);
    const auto start = Clock::now();
    std::deque<WebClient> clients;
    for (int i = 0; i < 4; ++i) { // half a head, half a body, no token, a large answer that nobody reads
        clients.emplace_back(server->Port()).Send("GET /api/x HTT");
        clients.emplace_back(server->Port()).Send(Ask("PUT /api/x", "Content-Length: 9\r\n") + "half");
        clients.emplace_back(server->Port()).Send(Upgrade());
        clients.emplace_back(server->Port()).Send(Ask("GET /api/large"));
    }
    for (int i = 0; i < 9; ++i) {
        clients.emplace_back(server->Port());
    }
    EXPECT_EQ(clients.back().Request(Ask("GET /")).status, 200);
    EXPECT_LT(Clock::now() - start, std::chrono::seconds(5));
    EXPECT_EQ(clients[1].ReceiveAll(), "");
    EXPECT_NE(clients[2].ReceiveAll().find("\x88\x0a\x03\xf0no token"), std::string::npos);
    EXPECT_LT(clients[3].ReceiveAll().size(), 16U << 20);
}

TEST_F(PanelServer, LetsClientsWaitWhileAllConnectionsAreInUse) {
    Serve();
    std::deque<WebClient> clients;
    for (int i = 0; i < 9; ++i) {
        clients.emplace_back(server->Port()).Send(Ask("GET /api/late", "Connection: close\r\n"));
    }
    std::vector<std::function<void(Response)>> late(8);
    std::generate(late.begin(), late.end(), [&] { return service.TakeLate(); });
    std::this_thread::sleep_for(milliseconds(100));
    EXPECT_TRUE(service.HasNothing());
    late.front()({200, "done"});
    EXPECT_EQ(clients.front().Receive().body, "done");
    EXPECT_TRUE(service.TakeLate());
    EXPECT_EQ(clients.front().ReceiveAll(), "");
}

TEST_F(PanelServer, ConnectsWebSocketsThatKnowTheToken) {
    Limits limits;
    limits.idle = milliseconds(100);
    Serve(limits);
    const auto client = Open();
    const ClientId id = service.last;
    server->SendText(id, "{}");
    server->SendBinary(id, std::make_shared<const std::string>(100000, 'b'));
    EXPECT_EQ(client->ReceiveFrame().content, "{}");
    const auto picture = client->ReceiveFrame();
    EXPECT_EQ(picture.operation, 2);
    EXPECT_EQ(picture.content, std::string(100000, 'b'));
    const std::string largest(65536, 't');
    client->SendFrame(1, largest);
    EXPECT_EQ(service.Next(), std::to_string(id) + ' ' + largest);
    EXPECT_EQ(client->ReceiveFrame().operation, 9); // a ping, which this client does not answer
    EXPECT_EQ(client->ReceiveFrame().operation, 0);
    EXPECT_EQ(service.Next(), "closed " + std::to_string(id));
    server->SendText(id, "to nobody");
    EXPECT_TRUE(service.HasNothing());
    EXPECT_EQ(WebClient(server->Port()).ReceiveAll(), ""); // an idle connection
}

TEST_F(PanelServer, ClosesWebSocketsThatBreakTheRules) {
    Limits limits;
    limits.unsent = 1 << 20;
    Serve(limits);
    const auto closing = [&](WebClient& client, unsigned int operation, const std::string& content) {
        client.SendFrame(operation, content);
        const std::string reason = client.ReceiveFrame().content;
        return reason.size() < 2 ? 0
                                 : static_cast<unsigned char>(reason[0]) * 256 + static_cast<unsigned char>(reason[1]);
    };
    for (const char* const message :
         {"", "secret", "{\"token\": \"secre\"}", "{\"token\": 1}", "[[", "{\"token\": null}"}) {
        WebClient client(server->Port());
        EXPECT_EQ(client.Request(Upgrade()).status, 101);
        EXPECT_EQ(closing(client, 1, message), 1008) << message;
    }
    EXPECT_TRUE(service.HasNothing());
    const struct {
        int code;
        unsigned int operation;
        std::string content;
    } messages[] = {{1003, 2, "binary"}, {1009, 1, std::string(65537, 't')}, {1007, 1, "\xFF"}, {1002, 3, "reserved"}};
    for (const auto& [code, operation, content] : messages) {
        const auto client = Open();
        EXPECT_EQ(closing(*client, operation, content), code);
        client->EndSending();
        EXPECT_EQ(service.Next(), "closed " + std::to_string(service.last));
    }
    const auto slow = Open();
    for (int i = 0; i < 100; ++i) {
        server->SendBinary(service.last, std::make_shared<const std::string>(200000, 'b'));
    }
    EXPECT_EQ(service.Next(), "closed " + std::to_string(service.last));
    std::deque<std::unique_ptr<WebClient>> tabs;
    std::generate_n(std::back_inserter(tabs), 6, [&] { return Open(); });
    EXPECT_EQ(WebClient(server->Port()).Request(Upgrade()).status, 503);
}

TEST_F(PanelServer, RefusesAPortInUse) {
    Serve();
    EXPECT_THROW(Server(service, server->Port(), "other"), Host::OpenError);
    EXPECT_NE(MakeToken(), MakeToken());
    EXPECT_EQ(MakeToken().size(), 32U);
}

} // namespace

} // namespace Scenario
