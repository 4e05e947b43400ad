// Plays one input: clients that send anything to the server of the control panel.

#include "Tests/Fuzz/PanelFuzzer.h"

#include "Common/Text.h"
#include "Host/Panel/Server.h"
#include "Tests/Fuzz/Failures.h"
#include "Tests/Fuzz/Input.h"
#include "Tests/Support/WebClient.h"

#include <array>
#include <atomic>
#include <deque>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <utility>

namespace Fuzz {

namespace {

using namespace Host::Panel;
using Test::WebClient;

constexpr std::size_t mostClients = 4;   ///< at a time, so that the server has room for one more
constexpr std::size_t mostBytes = 40000; ///< so that an execution is short, and no answer waits for a reader

/// Clients that do what the input says. They send pieces that make requests of few bytes.
class Visitors {
public:
    Visitors(std::uint16_t of, Input& bytes) : port(of), input(bytes) { clients.emplace_back(port); }

    void Visit() {
        while (!input.AtEnd() && sent < mostBytes) {
            Act(input.Byte());
        }
    }
    /// The server closes what its clients have ended.
    void Leave() {
        for (WebClient& client : clients) {
            client.EndSending();
            Check(client.ReceiveAll());
        }
    }
    [[nodiscard]] bool HadToken() const { return hadToken; }

private:
    void Act(std::uint8_t kind) {
        if (kind < 0xA0) {
            Send(Piece(kind % 24));
        } else if (kind < 0xC0) {
            Send(Raw(kind - 0x9FU));
        } else if (kind < 0xE0) {
            Frame(kind);
        } else if (kind < 0xE8) {
            for (unsigned int i = input.Byte() * 8U; i > 0 && sent < mostBytes; --i) {
                Send(std::string(last));
            }
        } else if (kind < 0xF0) {
            if (clients.size() == mostClients) {
                clients.pop_front(); // with something unread, perhaps
            }
            clients.emplace_back(port);
        } else if (kind < 0xF4) {
            clients.back().EndSending();
        } else {
            Send(Raw(1) + std::string(std::size_t{300} * input.Byte(), 'x'));
        }
    }

    std::string Piece(std::size_t kind) {
        const std::string host = "Host: 127.0.0.1:" + std::to_string(port) + "\r\n";
        const std::string token = "Authorization: Bearer " + std::string(panelToken) + "\r\n";
        const std::array<std::string, 24> pieces = {
            "GET /icon.svg HTTP/1.1\r\n" + host + "\r\n",
            "GET /api/camera HTTP/1.1\r\n" + host + token + "\r\n",
            "PUT /api/functions/gain?x=%20 HTTP/1.1\r\n" + host + token,
            "GET /api/events HTTP/1.1\r\n" + host +
                "Connection: Upgrade\r\nUpgrade: websocket\r\nSec-WebSocket-Version: 13\r\n"
                "Sec-WebSocket-Key: dGhlIHNhbXBsZSBub25jZQ==\r\n",
            host,
            token,
            "Origin: http://127.0.0.1:" + std::to_string(port) + "\r\n",
            "Origin: http://evil\r\n",
            "\r\n",
            " HTTP/1.1\r\n",
            "GET /",
            "HEAD /api/",
            "POST ",
            "%2f",
            "Content-Length: " + std::to_string(input.Word()) + "\r\n",
            "Transfer-Encoding: chunked\r\n",
            "Expect: 100-continue\r\n",
            "Connection: close\r\n",
            "Connection: keep-alive\r\n",
            "5\r\nchunk\r\n",
            "0\r\n\r\n",
            "10000\r\n",
            ": ",
            "X",
        };
        hadToken = hadToken || kind == 1 || kind == 2 || kind == 5;
        return pieces.at(kind);
    }

    std::string Raw(std::size_t size) {
        std::string bytes;
        for (; size > 0; --size) {
            bytes += static_cast<char>(input.Byte());
        }
        return bytes;
    }

    /// A frame of a WebSocket: the token, a text, or with anything in its header.
    void Frame(std::uint8_t kind) {
        if (kind < 0xC8) {
            hadToken = true;
            clients.back().SendFrame(1, R"({"token": ")" + std::string(panelToken) + "\"}");
        } else if (kind < 0xD8) {
            clients.back().SendFrame(kind < 0xD0 ? 1 : input.Byte() & 0xFU, Raw(input.Choice(40)));
        } else {
            Send(Raw(2 + input.Choice(12)));
        }
    }

    void Send(std::string bytes) {
        last = std::move(bytes);
        sent += last.size() + 1;
        clients.back().Send(last);
    }

    /// Each answer is one of HTTP, and protected; up to the first message of a WebSocket.
    static void Check(const std::string& received) {
        Require(received != "waits", "a connection that its client has ended is closed");
        Require(received.empty() || received.starts_with("HTTP/1.1 "), "an answer is one of HTTP");
        std::size_t end = 0;
        for (std::size_t at = 0; (at = received.find("HTTP/1.1 ", at)) != std::string::npos; at = end) {
            end = received.find("\r\n\r\n", at);
            if (end == std::string::npos) {
                return;
            }
            const std::string head = received.substr(at, end - at);
            Require(head == "HTTP/1.1 100 Continue" || head.find("\r\nContent-Security-Policy: ") != std::string::npos,
                    "every answer is protected");
            Require(head.find("\r\nX") == head.find("\r\nX-Content-Type-Options: "), "a client adds no field");
            if (head.starts_with("HTTP/1.1 101 ")) {
                return;
            }
        }
    }

    std::uint16_t port;
    Input& input;
    std::deque<WebClient> clients;
    std::string last;
    std::size_t sent = 0;
    bool hadToken = false;
};

/// Answers everything, and sends back what it receives.
class Answering : public Service {
public:
    void Handle(Request request, std::function<void(Response)> respond) override {
        wasUsed = true;
        Require(request.path.starts_with("/api/"), "the service gets what is for it");
        Require(request.body.size() <= 65536, "a body is limited");
        if (request.path != "/api/") { // else it is dropped
            respond({200, "{}", "application/json", request.path});
        }
    }
    void Opened(ClientId client) override {
        wasUsed = true;
        Require(open.insert(client).second, "a client is opened once");
        Send(client, "{}");
    }
    void Received(ClientId client, std::string text) override {
        Require(open.contains(client), "a message is from an open client");
        Require(text.size() <= 65536 && Common::IsUtf8(text), "a message is what it should be");
        Send(client, std::move(text));
    }
    void Closed(ClientId client) override { Require(open.erase(client) == 1, "a client is closed once"); }

    std::atomic<bool> wasUsed = false;
    Server* server = nullptr;

private:
    void Send(ClientId client, std::string text) {
        server->SendBinary(client, std::make_shared<const std::string>(text));
        server->SendText(client, std::move(text));
    }

    std::set<ClientId> open;
};

} // namespace

bool VisitPanel(std::uint16_t port, const std::uint8_t* bytes, std::size_t size) {
    Input input(bytes, size);
    const bool leave = input.Choice(4) != 0; // else they are just gone
    Visitors visitors(port, input);
    visitors.Visit();
    if (leave) {
        visitors.Leave();
    }
    const std::string host = "Host: 127.0.0.1:" + std::to_string(port);
    const auto page = WebClient(port).Request("GET / HTTP/1.1\r\n" + host + "\r\n\r\n");
    Require(page.status == 200, "the page is still served");
    return visitors.HadToken();
}

} // namespace Fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    Fuzz::Answering service;
    Host::Panel::Server server(service, 0, std::string(Fuzz::panelToken));
    service.server = &server;
    const bool hadToken = Fuzz::VisitPanel(server.Port(), bytes, size);
    Fuzz::Require(hadToken || !service.wasUsed, "the service is used with the token alone");
    return 0;
}
