#include "Simulation/Cameras.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

namespace Scenario {

using Block = std::array<std::uint32_t, 5>;

std::array<std::uint32_t, 12> ReadBlock(SDK4::IControlPort& port, std::uint32_t address, std::uint32_t length) {
    std::array<std::uint32_t, 12> words{};
    const std::unique_ptr<unsigned char, decltype(&std::free)> block(port.ReadBlock(address, length), &std::free);
    std::copy_n(block.get(), length, reinterpret_cast<unsigned char*>(words.data()));
    return words;
}

void WriteBlock(SDK4::IControlPort& port, std::uint32_t address, const std::vector<std::uint32_t>& words) {
    port.WriteBlock(address, reinterpret_cast<const unsigned char*>(words.data()),
                    static_cast<std::uint32_t>(words.size() * sizeof words[0]));
}

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

    WriteBlock(*camera, 0x1E030000, {1, 10, 20, 30, 40});
    camera->WriteRegister(0x1E030000, 0);
    camera->WriteRegister(0x1E030000, 1);
    EXPECT_EQ(ReadBlock(*camera, 0x1E030000, 20), (std::array<std::uint32_t, 12>{1, 10, 20, 30, 40}));
}

TEST_F(SimulatedOrvik, TakesAPartOfARegister) {
    WriteMem(0x66110000, {4, 1500}, 8);
    camera->WriteRegister(0x66110004, 77); // only the value, of the selected instance
    EXPECT_EQ(camera->ReadRegister(0x66110004), 77U);
    EXPECT_EQ(ReadMem(0x66110000, 8), (Block{4, 77}));
    std::uint64_t one = 1;
    std::uint8_t byte = 0x12;
    camera->WriteMem(0x18010001, &byte, &one); // brightness, up to 2047
    EXPECT_EQ(camera->ReadRegister(0x18010000), 2047U);
    camera->ReadMem(0x18010001, &byte, &one);
    EXPECT_EQ(byte, 0x07);

    EXPECT_EQ(ReadMem(0x0008, 8), (Block{0x00000200, 0x12070710})); // both words of the MAC
    EXPECT_STREQ(camera->ReadString(0x0068, 32), "Orvik-710C");
    EXPECT_STREQ(camera->ReadString(0x64010000, 24) + 4, "Orvik-710C"); // after its length word
}

TEST_F(SimulatedOrvik, TakesSeveralRegistersAtOnce) {
    WriteMem(0x0D00, {9, 8001, 77}, 12); // the first belongs to the control channel
    EXPECT_EQ(ReadMem(0x0D00, 12), (Block{0, 8000, 77}));
}

TEST_F(SimulatedOrvik, HoldsNothingBehindARegister) {
    WriteMem(0x14010000, {5, 6, 7}, 12);
    WriteMem(0x1401FFFC, {8}, 4);
    WriteMem(0x66110008, {9}, 4);
    WriteMem(0x0014, {7, 0x11111111, 0x22222222}, 12); // followed by reserved addresses
    EXPECT_EQ(ReadMem(0x14010000, 12), (Block{5, 0, 0}));
    EXPECT_EQ(camera->ReadRegister(0x1401FFFC), 0U);
    EXPECT_EQ(ReadMem(0x66110000, 12), (Block{0, 0, 0}));
    EXPECT_EQ(ReadMem(0x0014, 12), (Block{7, 0, 0}));
}

TEST_F(SimulatedOrvik, RefusesAnAddressThatItDoesNotHave) {
    const auto before = camera->Time();
    try {
        camera->WriteRegisterPair(0x00030000, 1);
        ADD_FAILURE();
    } catch (const Simulation::InvalidAddressError& error) {
        EXPECT_EQ(error.operation, "WriteRegisterPair");
        EXPECT_EQ(error.address, 0x00030000U);
        EXPECT_STREQ(error.what(), "WriteRegisterPair at 0x00030000 failed: the camera has no such address (0x8003)");
    }
    EXPECT_EQ(camera->Time() - before, std::chrono::microseconds(500)); // takes time like any access
    EXPECT_THROW((void)camera->ReadString(0x00F4, 8), Simulation::PortError);
    EXPECT_THROW((void)camera->ReadString(0x064B, 1), Simulation::InvalidAddressError); // just before a register
    EXPECT_NO_THROW((void)camera->ReadString(0x064F, 1));
    EXPECT_THROW((void)camera->ReadString(0x064F, 2), Simulation::InvalidAddressError);
    EXPECT_THROW(WriteMem(0x0D08, {2000, 1}, 8), Simulation::InvalidAddressError); // half of the access
    EXPECT_EQ(camera->ReadRegister(0x0D08), 0U);
}

TEST_F(SimulatedOrvik, ActsAfterAWriteOfAnyStyle) {
    WriteBlock(*camera, 0x28050000, {0, 0, 99, 79});
    EXPECT_EQ(camera->ReadRegisterPair(0x28030000), 80ULL << 32 | 100);
    camera->WriteRegister(0x28050008, 199); // one word within the area
    EXPECT_EQ(camera->ReadRegisterPair(0x28030000), 80ULL << 32 | 200);
    camera->WriteRegister(0x51020000, 0);
    EXPECT_EQ(camera->ReadRegisterPair(0x28030000), 2208ULL << 32 | 3208);
}

TEST(SimulatedM2VX, SwapsASelectorOfTwoWordsThatIsWrittenAlone) {
    const auto camera = Simulation::MakeCamera("Cerix7-MV");
    for (const std::uint32_t address : {0x0B020000U, 0x0A0C0000U}) { // defect pixels, analogue front end
        WriteBlock(*camera, address, {1, 0, 7, 8, 2});
        camera->WriteRegisterPair(address, 0); // row 0, column 0
        EXPECT_EQ(ReadBlock(*camera, address, 8)[0], 0U);
        camera->WriteRegisterPair(address, 1ULL << 32); // row 1, column 0
        const auto block = ReadBlock(*camera, address, 20);
        EXPECT_EQ(block, (std::array<std::uint32_t, 12>{1, 0, 7, 8, 2}));
    }
    WriteBlock(*camera, 0x50050000, {1, 0, 0}); // a device register: a selector of three words is not swapped
    EXPECT_EQ(ReadBlock(*camera, 0x50050000, 16)[3], 1207U);
}

TEST(SimulatedM2VX, ClampsSignedAndUnsignedWordsAndKeepsWhatItAdmits) {
    const auto camera = Simulation::MakeCamera("Cerix7-MV");
    camera->WriteRegister(0x14010000, 0xFFFFFFFF);
    EXPECT_EQ(camera->ReadRegister(0x14010000), 568U);
    camera->WriteRegister(0x0A030000, 0);
    EXPECT_EQ(camera->ReadRegister(0x0A030000), 1U);
    WriteBlock(*camera, 0x1E030000, {512, 3, 0xFFFFFE00, 0xFFFFFFFF, 0});
    EXPECT_EQ(ReadBlock(*camera, 0x1E030000, 20), (std::array<std::uint32_t, 12>{511, 3, 0xFFFFFE01, 0xFFFFFFFF, 1}));
    camera->WriteRegisterPair(0x1B020000, 0xFFFFFF0000000002); // channel 2
    camera->WriteRegisterPair(0x1B020000, 0x0000007F00000003);
    camera->WriteRegister(0x1B020000, 2);
    EXPECT_EQ(camera->ReadRegisterPair(0x1B020000), 0xFFFFFF8000000002);
    camera->WriteRegister(0x1B020000, 3);
    EXPECT_EQ(camera->ReadRegisterPair(0x1B020000), 0x0000007F00000003U);
}

TEST(SimulatedCamera, CarriesItsDescriptionWhereItsUrlSays) {
    for (const std::string& model : Simulation::ModelNames()) {
        const auto camera = Simulation::MakeCamera(model);
        const std::string url = camera->ReadString(0x0200, 512);
        const std::size_t size = std::stoul(url.substr(url.rfind(';') + 1), nullptr, 16);
        const std::string archive(camera->ReadString(0x00010000, static_cast<std::uint32_t>(size)), size);
        EXPECT_NE(url.find(".zip;"), std::string::npos) << url;
        EXPECT_TRUE(archive.starts_with("PK\3\4")) << model;
        EXPECT_EQ(archive.find("PK\5\6"), size - 22) << model << ": its last record is elsewhere";
    }
}

} // namespace Scenario
