#include <Cameras.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>

namespace Scenario {

using Block = std::array<std::uint32_t, 5>;

class SimulatedOrvik : public testing::Test {
protected:
    Block ReadMem(std::uint32_t address, std::uint64_t length) {
        Block block{};
        std::array<std::uint8_t, sizeof(Block)> bytes{};
        camera->ReadMem(address, bytes.data(), &length);
        std::copy(bytes.begin(), bytes.end(), reinterpret_cast<std::uint8_t*>(block.data()));
        return block;
    }
    void WriteMem(std::uint32_t address, Block block, std::uint64_t length) {
        camera->WriteMem(address, reinterpret_cast<std::uint8_t*>(block.data()), &length);
    }

    std::unique_ptr<Simulation::SimulatedCamera> camera = Simulation::MakeCamera("Orvik-710C");
};

TEST_F(SimulatedOrvik, ServesAnIndexedRegisterInEveryStyleOfBlock) {
    WriteMem(0x66110000, {4, 1500}, 8);
    camera->WriteRegister(0x66110000, 3);
    EXPECT_EQ(ReadMem(0x66110000, 8), (Block{3, 0}));
    camera->WriteRegister(0x66110000, 4);
    EXPECT_EQ(camera->ReadRegisterPair(0x66110000), 1500ULL << 32 | 4);

    camera->WriteRegisterPair(0x66110000, 77ULL << 32 | 3);
    camera->WriteRegister(0x66110000, 3);
    EXPECT_EQ(ReadMem(0x66110000, 8), (Block{3, 77}));

    const std::uint32_t area[] = {1, 10, 20, 30, 40};
    camera->WriteBlock(0x1E030000, reinterpret_cast<const unsigned char*>(area), sizeof area);
    camera->WriteRegister(0x1E030000, 0);
    camera->WriteRegister(0x1E030000, 1);
    const std::unique_ptr<unsigned char, decltype(&std::free)> block(camera->ReadBlock(0x1E030000, 20), &std::free);
    EXPECT_TRUE(std::equal(block.get(), block.get() + 20, reinterpret_cast<const unsigned char*>(area)));
}

TEST_F(SimulatedOrvik, IsMemoryWhereNoRegisterIsIndexed) {
    EXPECT_EQ(camera->ReadRegister(0x12345678), 0U);
    WriteMem(0x12345678, {1, 2, 3, 4, 5}, 20);
    EXPECT_EQ(camera->ReadRegister(0x1234567C), 2U);
    EXPECT_EQ(camera->ReadRegisterPair(0x12345680), 4ULL << 32 | 3);
    WriteMem(0xFFFFFFFC, {6, 7}, 8); // over the end of the address space
    EXPECT_EQ(camera->ReadRegister(0xFFFFFFFC), 6U);

    EXPECT_EQ(ReadMem(0x0008, 8), (Block{0x00000200, 0x12000710})); // both words of the MAC
    EXPECT_STREQ(camera->ReadString(0x0068, 32), "Orvik-710C");
    EXPECT_STREQ(camera->ReadString(0x64010000, 24) + 4, "Orvik-710C"); // behind its leading word
}

TEST_F(SimulatedOrvik, ActsAfterAWriteOfAnyStyle) {
    const std::uint32_t area[] = {0, 0, 99, 49};
    camera->WriteBlock(0x28050000, reinterpret_cast<const unsigned char*>(area), sizeof area);
    EXPECT_EQ(camera->ReadRegisterPair(0x28030000), 50ULL << 32 | 100);
    camera->WriteRegister(0x28050008, 199); // one word within the area
    EXPECT_EQ(camera->ReadRegisterPair(0x28030000), 50ULL << 32 | 200);
    camera->WriteRegister(0x51020000, 0);
    EXPECT_EQ(camera->ReadRegisterPair(0x28030000), 2208ULL << 32 | 3208);
}

} // namespace Scenario
