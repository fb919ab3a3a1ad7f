// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// Modbus TCP load generator.
//
// Masters in closed loop: each sends its next request when the answer to the last one has come, and compares
// every answer with the expected one byte for byte. Prints one JSON object; a wrong or missing answer ends
// the run with exit code 1 and a line on standard error.

#include "latencyhistogram.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <arpa/inet.h>
#include <getopt.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/epoll.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using Bytes = std::vector<std::uint8_t>;

constexpr int silenceLimitMs = 5000;

struct Options
{
    std::uint16_t port = 502;
    int masters = 1;
    int idle = 0; // connected and served once, then silent
    bool churn = false; // a new connection for each request
    double seconds = 2; // measured
    double warmup = 0.3; // before that
    std::uint64_t requests = UINT64_MAX; // ends the run early
    Bytes requestPdu;
    Bytes answerPdu;
    int serverPid = 0; // whose CPU time is reported; 0 for none
};

struct Master
{
    int descriptor = -1;
    std::uint16_t transaction = 0;
    std::uint64_t answered = 0; // since the load began
    std::size_t received = 0;
    Clock::time_point asked;
    std::array<std::uint8_t, 512> buffer = {};
};

[[noreturn]] void fail(const std::string &what, int error = 0)
{
    throw std::runtime_error(error != 0 ? what + ": " + std::strerror(error) : what);
}

Bytes fromHex(const std::string &text)
{
    Bytes bytes;
    for (std::size_t i = 0; i + 1 < text.size(); i += 2) {
        bytes.push_back(static_cast<std::uint8_t>(std::stoul(text.substr(i, 2), nullptr, 16)));
    }
    return bytes;
}

std::string toHex(const std::uint8_t *bytes, std::size_t size)
{
    std::string text;
    for (std::size_t i = 0; i < size; ++i) {
        std::array<char, 3> digits = {};
        std::snprintf(digits.data(), digits.size(), "%02x", static_cast<unsigned>(bytes[i]));
        text += digits.data();
    }
    return text;
}

// Header with transaction identifier 0, protocol 0 and unit 1 before the PDU.
Bytes frameOf(const Bytes &pdu)
{
    constexpr std::size_t headerSize = 7;
    Bytes frame(headerSize + pdu.size());
    frame[4] = static_cast<std::uint8_t>((pdu.size() + 1) >> 8U);
    frame[5] = static_cast<std::uint8_t>(pdu.size() + 1);
    frame[6] = 1;
    std::copy(pdu.begin(), pdu.end(), frame.begin() + headerSize);
    return frame;
}

void setTransaction(Bytes &frame, std::uint16_t transaction)
{
    frame[0] = static_cast<std::uint8_t>(transaction >> 8U);
    frame[1] = static_cast<std::uint8_t>(transaction);
}

// User and system time of a process in seconds, in steps of 10 ms.
double cpuSeconds(int pid)
{
    std::ifstream file("/proc/" + std::to_string(pid) + "/stat");
    std::string line;
    std::getline(file, line);
    unsigned long user = 0;
    unsigned long system = 0;
    const std::size_t nameEnd = line.rfind(')');
    if (nameEnd == std::string::npos
        || std::sscanf(line.c_str() + nameEnd, ") %*c %*d %*d %*d %*d %*d %*u %*u %*u %*u %*u %lu %lu", &user,
                       &system)
            != 2) {
        return 0;
    }
    return static_cast<double>(user + system) / static_cast<double>(sysconf(_SC_CLK_TCK));
}

double ownCpuSeconds()
{
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec)
        + static_cast<double>(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}

double secondsBetween(Clock::time_point begin, Clock::time_point end)
{
    return std::chrono::duration<double>(end - begin).count();
}

class LoadRun
{
public:
    explicit LoadRun(const Options &options)
        : m_options(options), m_request(frameOf(options.requestPdu)), m_answer(frameOf(options.answerPdu)),
          m_masters(static_cast<std::size_t>(options.masters))
    {
        if (m_epoll < 0) {
            fail("epoll_create1", errno);
        }
        if (m_answer.size() >= Master().buffer.size()) {
            fail("The expected answer is too long");
        }
    }

    LoadRun(const LoadRun &) = delete;
    LoadRun &operator=(const LoadRun &) = delete;

    ~LoadRun() { close(m_epoll); }

    void run()
    {
        introduceMasters();
        load(m_options.warmup, UINT64_MAX);
        m_latencies = LatencyHistogram();
        const double serverCpu = cpuSeconds(m_options.serverPid);
        const double ownCpu = ownCpuSeconds();
        const Clock::time_point begin = Clock::now();
        load(m_options.seconds, m_options.requests);
        m_seconds = secondsBetween(begin, Clock::now());
        m_serverCpu = cpuSeconds(m_options.serverPid) - serverCpu;
        m_ownCpu = ownCpuSeconds() - ownCpu;
    }

    void print() const
    {
        const auto microseconds = [](std::uint64_t value) { return static_cast<double>(value) / 1000; };
        const auto requests = static_cast<double>(m_latencies.count());
        const QJsonObject figures{
            {QStringLiteral("requests"), static_cast<qint64>(m_latencies.count())},
            {QStringLiteral("seconds"), m_seconds},
            {QStringLiteral("requests_per_second"), requests / m_seconds},
            {QStringLiteral("p50_us"), microseconds(m_latencies.quantile(0.5))},
            {QStringLiteral("p99_us"), microseconds(m_latencies.quantile(0.99))},
            {QStringLiteral("p999_us"), microseconds(m_latencies.quantile(0.999))},
            {QStringLiteral("max_us"), microseconds(m_latencies.maximum())},
            {QStringLiteral("best_to_worst"), bestToWorst()},
            {QStringLiteral("server_cpu_us"), m_serverCpu * 1e6 / requests},
            {QStringLiteral("generator_cpu_share"), m_ownCpu / m_seconds},
        };
        std::puts(QJsonDocument(figures).toJson(QJsonDocument::Compact).constData());
    }

private:
    // Answers to the master that got most, divided by those to the one that got fewest.
    double bestToWorst() const
    {
        const auto [worst, best] = std::minmax_element(
            m_masters.begin(), m_masters.end(),
            [](const Master &one, const Master &other) { return one.answered < other.answered; });
        return static_cast<double>(best->answered) / static_cast<double>(worst->answered);
    }

    // Every connection is served once before the load begins. This also keeps the accept queue short, whose
    // overflow would cost a second for each connection.
    void introduceMasters()
    {
        std::vector<Master> idle(static_cast<std::size_t>(m_options.idle));
        for (std::vector<Master> *group : {&idle, &m_masters}) {
            for (Master &master : *group) {
                connectMaster(master);
                ask(master, Clock::now());
                while (!takeAnswer(master)) {
                    waitForEvents();
                }
            }
        }
        for (const Master &master : idle) {
            epoll_ctl(m_epoll, EPOLL_CTL_DEL, master.descriptor, nullptr);
        }
    }

    // All masters ask until the time is over or enough was answered; what was asked by then is still awaited.
    void load(double seconds, std::uint64_t requests)
    {
        const Clock::time_point end = Clock::now()
            + std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(seconds));
        std::uint64_t asked = 0;
        std::uint64_t answered = 0;
        for (Master &master : m_masters) {
            master.answered = 0;
            next(master);
            ++asked;
        }
        bool asking = true;
        while (answered < asked) {
            const int count = waitForEvents();
            asking = asking && Clock::now() < end;
            for (int i = 0; i < count; ++i) {
                Master &master = *static_cast<Master *>(m_events[static_cast<std::size_t>(i)].data.ptr);
                if (!takeAnswer(master)) {
                    continue;
                }
                ++answered;
                ++master.answered;
                if (asking && asked < requests) {
                    next(master);
                    ++asked;
                }
            }
        }
    }

    void next(Master &master)
    {
        const Clock::time_point now = Clock::now();
        if (m_options.churn) {
            close(master.descriptor);
            connectMaster(master);
        }
        ask(master, now);
    }

    int waitForEvents()
    {
        const int count =
            epoll_wait(m_epoll, m_events.data(), static_cast<int>(m_events.size()), silenceLimitMs);
        if (count == 0) {
            fail("No answer for " + std::to_string(silenceLimitMs) + " ms");
        }
        return count;
    }

    void connectMaster(Master &master)
    {
        // Closed connections keep their pair of addresses for a minute: 250 server addresses have enough.
        sockaddr_in address = {};
        address.sin_family = AF_INET;
        address.sin_port = htons(m_options.port);
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK + m_connections++ % 250);

        master.descriptor = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        if (master.descriptor < 0) {
            fail("socket", errno);
        }
        const int on = 1;
        setsockopt(master.descriptor, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
        if (connect(master.descriptor, reinterpret_cast<const sockaddr *>(&address), sizeof address) < 0) {
            fail("connect", errno);
        }
        epoll_event event = {};
        event.events = EPOLLIN;
        event.data.ptr = &master;
        if (epoll_ctl(m_epoll, EPOLL_CTL_ADD, master.descriptor, &event) < 0) {
            fail("epoll_ctl", errno);
        }
    }

    void ask(Master &master, Clock::time_point now)
    {
        setTransaction(m_request, ++master.transaction);
        master.received = 0;
        master.asked = now;
        const ssize_t sent = send(master.descriptor, m_request.data(), m_request.size(), MSG_NOSIGNAL);
        if (sent != static_cast<ssize_t>(m_request.size())) {
            fail("send", errno);
        }
    }

    // Whether the answer is complete. One that differs from the expected one ends the run.
    bool takeAnswer(Master &master)
    {
        const ssize_t size = recv(master.descriptor, master.buffer.data() + master.received,
                                  master.buffer.size() - master.received, MSG_DONTWAIT);
        if (size < 0 && (errno == EAGAIN || errno == EINTR)) {
            return false;
        }
        if (size <= 0) {
            fail("The server closed a connection", size < 0 ? errno : 0);
        }
        master.received += static_cast<std::size_t>(size);
        setTransaction(m_answer, master.transaction);
        const std::size_t comparable = std::min(master.received, m_answer.size());
        if (master.received > m_answer.size()
            || std::memcmp(master.buffer.data(), m_answer.data(), comparable) != 0) {
            fail("Unexpected answer " + toHex(master.buffer.data(), master.received) + " instead of "
                 + toHex(m_answer.data(), m_answer.size()));
        }
        if (master.received < m_answer.size()) {
            return false;
        }
        m_latencies.add(static_cast<std::uint64_t>(
            std::chrono::duration_cast<std::chrono::nanoseconds>(Clock::now() - master.asked).count()));
        return true;
    }

    const Options m_options;
    Bytes m_request;
    Bytes m_answer;
    std::vector<Master> m_masters;
    std::array<epoll_event, 256> m_events = {};
    const int m_epoll = epoll_create1(EPOLL_CLOEXEC);
    std::uint32_t m_connections = 0;
    LatencyHistogram m_latencies;
    double m_seconds = 0;
    double m_serverCpu = 0;
    double m_ownCpu = 0;
};

Options parse(int argc, char **argv)
{
    const std::array<option, 11> known = {{{"port", required_argument, nullptr, 'p'},
                                           {"masters", required_argument, nullptr, 'm'},
                                           {"idle", required_argument, nullptr, 'i'},
                                           {"churn", no_argument, nullptr, 'c'},
                                           {"seconds", required_argument, nullptr, 's'},
                                           {"warmup", required_argument, nullptr, 'w'},
                                           {"requests", required_argument, nullptr, 'n'},
                                           {"request", required_argument, nullptr, 'r'},
                                           {"answer", required_argument, nullptr, 'a'},
                                           {"server-pid", required_argument, nullptr, 'x'},
                                           {nullptr, 0, nullptr, 0}}};
    Options options;
    for (int choice = 0; (choice = getopt_long(argc, argv, "", known.data(), nullptr)) != -1;) {
        switch (choice) {
        case 'p':
            options.port = static_cast<std::uint16_t>(std::stoul(optarg));
            break;
        case 'm':
            options.masters = std::stoi(optarg);
            break;
        case 'i':
            options.idle = std::stoi(optarg);
            break;
        case 'c':
            options.churn = true;
            break;
        case 's':
            options.seconds = std::stod(optarg);
            break;
        case 'w':
            options.warmup = std::stod(optarg);
            break;
        case 'n':
            options.requests = std::stoull(optarg);
            break;
        case 'r':
            options.requestPdu = fromHex(optarg);
            break;
        case 'a':
            options.answerPdu = fromHex(optarg);
            break;
        case 'x':
            options.serverPid = std::stoi(optarg);
            break;
        default:
            fail("See the options in the source");
        }
    }
    return options;
}

} // namespace

int main(int argc, char **argv)
{
    try {
        LoadRun run(parse(argc, argv));
        run.run();
        run.print();
        return EXIT_SUCCESS;
    } catch (const std::exception &error) {
        std::fprintf(stderr, "%s\n", error.what());
        return EXIT_FAILURE;
    }
}
