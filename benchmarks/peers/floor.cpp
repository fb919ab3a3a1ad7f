// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// floor PORT PDU: the least that a server can do. Bare epoll, and one answer to whatever arrives: the
// request's header fields with the given PDU (hexadecimal digits) behind them.

#include <netinet/in.h>
#include <sys/epoll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace {

int listenOn(const char *port)
{
    const int server = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const int on = 1;
    setsockopt(server, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(std::atoi(port)));
    if (bind(server, reinterpret_cast<const sockaddr *>(&address), sizeof address) < 0
        || listen(server, 50) < 0) {
        std::exit(EXIT_FAILURE);
    }
    return server;
}

std::vector<std::uint8_t> answerWith(const std::string &pdu)
{
    std::vector<std::uint8_t> answer(7);
    for (std::size_t i = 0; i + 1 < pdu.size(); i += 2) {
        answer.push_back(static_cast<std::uint8_t>(std::stoul(pdu.substr(i, 2), nullptr, 16)));
    }
    answer[5] = static_cast<std::uint8_t>(answer.size() - 6);
    return answer;
}

void watch(int epoll, int descriptor)
{
    epoll_event event = {};
    event.events = EPOLLIN;
    event.data.fd = descriptor;
    epoll_ctl(epoll, EPOLL_CTL_ADD, descriptor, &event);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3) {
        return EXIT_FAILURE;
    }
    const int server = listenOn(argv[1]);
    std::vector<std::uint8_t> answer = answerWith(argv[2]);
    const int epoll = epoll_create1(EPOLL_CLOEXEC);
    watch(epoll, server);

    std::array<epoll_event, 256> events = {};
    std::array<std::uint8_t, 512> request = {};
    for (;;) {
        const int count = epoll_wait(epoll, events.data(), static_cast<int>(events.size()), -1);
        for (int i = 0; i < count; ++i) {
            const int descriptor = events[static_cast<std::size_t>(i)].data.fd;
            if (descriptor == server) {
                watch(epoll, accept4(server, nullptr, nullptr, SOCK_CLOEXEC));
                continue;
            }
            if (recv(descriptor, request.data(), request.size(), 0) <= 0) {
                close(descriptor);
                continue;
            }
            std::memcpy(answer.data(), request.data(), 4);
            answer[6] = request[6];
            send(descriptor, answer.data(), answer.size(), MSG_NOSIGNAL);
        }
    }
}
