#pragma once

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>

namespace Test {

/// A connection to a server of HTTP and WebSocket on this machine, that sends anything.
class WebClient {
public:
    explicit WebClient(std::uint16_t port) : connection(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
        const timeval longest{10, 0};
        setsockopt(connection, SOL_SOCKET, SO_RCVTIMEO, &longest, sizeof longest);
        const int on = 1;
        setsockopt(connection, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
        sockaddr_in at{AF_INET, htons(port), {htonl(INADDR_LOOPBACK)}, {}};
        if (connect(connection, reinterpret_cast<const sockaddr*>(&at), sizeof at) != 0) {
            std::perror("connect");
        }
    }
    ~WebClient() { close(connection); }
    WebClient(const WebClient&) = delete;
    WebClient& operator=(const WebClient&) = delete;

    /// Sends as much as the server takes.
    void Send(std::string_view bytes) const {
        while (!bytes.empty()) {
            const ssize_t sent = send(connection, bytes.data(), bytes.size(), MSG_NOSIGNAL);
            if (sent < 0 && errno != EINTR) {
                return;
            }
            bytes.remove_prefix(sent < 0 ? 0 : static_cast<std::size_t>(sent));
        }
    }
    void EndSending() const { shutdown(connection, SHUT_WR); }

    /// An answer of HTTP. Status 0: none came.
    struct Answer {
        int status = 0;
        std::string head;
        std::string body;
    };
    Answer Receive(bool withBody = true) {
        while (received.find("\r\n\r\n") == std::string::npos) {
            if (!ReceiveSome()) {
                return {};
            }
        }
        Answer answer;
        answer.head = Take(received.find("\r\n\r\n") + 4);
        answer.status = std::stoi(answer.head.substr(answer.head.find(' ')));
        const std::size_t length = answer.head.find("Content-Length: ");
        if (withBody && length != std::string::npos) {
            answer.body = TakeAll(std::stoul(answer.head.substr(length + 16)));
        }
        return answer;
    }
    Answer Request(std::string_view request) {
        Send(request);
        return Receive();
    }

    /// Sends a frame of a WebSocket, complete and masked.
    void SendFrame(unsigned int operation, std::string_view content) const {
        const int bytes = content.size() < 126 ? 0 : content.size() < 65536 ? 2 : 8; // of its size
        std::string frame = {static_cast<char>(0x80 | operation), static_cast<char>(0x80 | (bytes == 0 ? content.size()
                                                                                            : bytes == 2 ? 126
                                                                                                         : 127))};
        for (int i = bytes; i-- > 0;) {
            frame += static_cast<char>(content.size() >> (8 * i));
        }
        Send(frame.append(4, '\0').append(content)); // a mask of zeros changes nothing
    }
    struct Frame {
        unsigned int operation = 0; ///< 1: text, 2: binary, 8: close, 9: ping; 0: none came
        std::string content;
    };
    Frame ReceiveFrame() {
        const std::string head = TakeAll(2);
        if (head.size() < 2) {
            return {};
        }
        std::size_t size = static_cast<unsigned char>(head[1]);
        if (size > 125) {
            std::size_t longer = 0;
            for (const char byte : TakeAll(size == 126 ? 2 : 8)) {
                longer = longer << 8 | static_cast<unsigned char>(byte);
            }
            size = longer;
        }
        return {static_cast<unsigned char>(head[0]) & 0xFU, TakeAll(size)};
    }

    /// Waits until the server closes. @return what came until then, or "waits" if it does not
    std::string ReceiveAll() {
        while (ReceiveSome()) {
        }
        return timedOut ? "waits" : Take(received.size());
    }

private:
    bool ReceiveSome() {
        char some[65536];
        ssize_t got = 0;
        do {
            got = recv(connection, some, sizeof some, 0);
        } while (got < 0 && errno == EINTR);
        timedOut = got < 0 && errno == EAGAIN;
        received.append(some, got > 0 ? static_cast<std::size_t>(got) : 0);
        return got > 0;
    }
    std::string Take(std::size_t size) {
        std::string taken = received.substr(0, size);
        received.erase(0, size);
        return taken;
    }
    std::string TakeAll(std::size_t size) {
        while (received.size() < size && ReceiveSome()) {
        }
        return Take(size);
    }

    int connection;
    bool timedOut = false;
    std::string received;
};

} // namespace Test
