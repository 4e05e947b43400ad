// packet-storm COUNT SEED: sends COUNT datagrams to a camera, reproducible by the seed.

#include "Tests/Fuzz/PacketFuzzer.h"

#include <cstdio>
#include <cstdlib>
#include <random>
#include <vector>

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: %s COUNT SEED\n", argv[0]);
        return 2;
    }
    const std::size_t count = std::strtoul(argv[1], nullptr, 10);
    std::mt19937 generator(static_cast<std::mt19937::result_type>(std::strtoul(argv[2], nullptr, 10)));
    std::size_t played = 0;
    while (played < count) {
        std::vector<std::uint8_t> input(8192); // a few hundred datagrams to one camera
        for (std::uint8_t& byte : input) {
            byte = static_cast<std::uint8_t>(generator());
        }
        played += Fuzz::PlayDatagrams(input.data(), input.size());
    }
    std::printf("%zu datagrams, seed %s\n", played, argv[2]);
    return 0;
}
