#include "simulator/disc_info.h"
#include "simulator/failure.h"
#include "simulator/iso9660.h"
#include "simulator/tool_runner.h"

#include <random>

namespace {

namespace fs = std::filesystem;
using namespace simulator::iso9660;

/// Works on the bytes of one good image and reads what becomes of them.
class IsoImages : public SimulatedTool {
protected:
    static constexpr std::size_t kDescriptor = kFirstDescriptorSector * kSectorBytes;
    static constexpr std::size_t kRoot = 20 * kSectorBytes;

    IsoImages() {
        makeImage("good.iso");
        bytes_ = read(folder() / "good.iso");
        bytes_.resize(64 * kSectorBytes);
    }

    /// What the image is said to be: its startup file, or the failure.
    std::string verdict() const {
        write(folder() / "test.iso", bytes_);
        return verdictOf(folder() / "test.iso");
    }

    static std::string verdictOf(const fs::path& image) {
        try {
            simulator::ByteSource source(image, "image");
            return simulator::readDiscInfo(source).startup;
        } catch (const simulator::Failure& failure) {
            return failure.what();
        }
    }

    void putNumber(std::size_t at, std::uint32_t value) {
        for (std::size_t i = 0; i < 4; ++i)
            bytes_.at(at + i) = static_cast<char>(value >> (8 * i) & 0xFF);
    }

    std::string bytes_;
};

constexpr const char* kBad = "image: bad ISOFS.";
constexpr const char* kNoGame = "image: not a Playstation CD-ROM/DVD-ROM.";

TEST_F(IsoImages, AGoodImageIsRead) {
    EXPECT_EQ(verdict(), "SLUS_123.45");
}

TEST_F(IsoImages, TruncatedAtAnyPlaceTheyAreRefused) {
    const std::string whole = bytes_;
    for (const std::size_t size :
         {std::size_t{0}, std::size_t{1}, std::size_t{2048}, kDescriptor, kDescriptor + 2047,
          kDescriptor + kSectorBytes, kRoot, kRoot + 2047, kRoot + kSectorBytes}) {
        bytes_ = whole.substr(0, size);
        EXPECT_EQ(verdict(), kBad) << size;
    }
}

TEST_F(IsoImages, ARootFolderOutsideTheImageIsRefused) {
    for (const std::uint32_t sector : {64u, 100000u, 0x7FFFFFFFu, 0xFFFFFFFFu}) {
        putNumber(kDescriptor + kRootRecordAt + kRecordExtentAt, sector);
        EXPECT_EQ(verdict(), kBad) << sector;
    }
}

TEST_F(IsoImages, ARootFolderOfNoOrOfHugeSizeIsRefused) {
    for (const std::uint32_t size : {0u, 0x7FFFFFFFu, 0xFFFFFFFFu}) {
        putNumber(kDescriptor + kRootRecordAt + kRecordSizeAt, size);
        EXPECT_EQ(verdict(), kBad) << size;
    }
}

TEST_F(IsoImages, RecordsWithImpossibleLengthsAreRefused) {
    bytes_.at(kRoot) = 5;
    EXPECT_EQ(verdict(), kBad);
    bytes_.at(kRoot) = 34;
    bytes_.at(kRoot + kRecordNameLengthAt) = '\xFF';
    EXPECT_EQ(verdict(), kBad);
}

TEST_F(IsoImages, ARecordThatReachesBeyondTheFolderIsRefused) {
    bytes_.replace(kRoot, kSectorBytes, std::string(kSectorBytes, '\xFE'));
    EXPECT_EQ(verdict(), kBad);
}

TEST_F(IsoImages, AFolderOfZerosHoldsNoGame) {
    bytes_.replace(kRoot, kSectorBytes, std::string(kSectorBytes, '\0'));
    EXPECT_EQ(verdict(), kNoGame);
}

TEST_F(IsoImages, AFileThatLiesOutsideTheImageIsRefused) {
    const std::size_t systemCnf = bytes_.find("SYSTEM.CNF;1", kRoot) - kRecordNameAt;
    putNumber(systemCnf + kRecordExtentAt, 0xFFFFFFFF);
    EXPECT_EQ(verdict(), kBad);
}

TEST_F(IsoImages, AFolderThatHoldsItselfUnderTheFilesNameIsNoFile) {
    const std::size_t systemCnf = bytes_.find("SYSTEM.CNF;1", kRoot) - kRecordNameAt;
    putNumber(systemCnf + kRecordExtentAt, 20);
    bytes_.at(systemCnf + kRecordFlagsAt) = kDirectoryFlag;
    EXPECT_EQ(verdict(), kNoGame);
    bytes_.at(systemCnf + kRecordFlagsAt) = 0; // and as a file it is one without a startup line
    EXPECT_EQ(verdict(), kNoGame);
}

TEST_F(IsoImages, OtherBlockSizesAndEndlessDescriptorsAreRefused) {
    const std::string whole = bytes_;
    bytes_.at(kDescriptor + kBlockSizeAt + 1) = 4;
    EXPECT_EQ(verdict(), kBad);
    bytes_ = whole;
    for (std::size_t sector = 16; sector < 64; ++sector) {
        bytes_.replace(sector * kSectorBytes, kSectorBytes, whole.substr(kDescriptor, kSectorBytes));
        bytes_.at(sector * kSectorBytes) = 2; // a supplementary descriptor, again and again
    }
    EXPECT_EQ(verdict(), kBad);
}

TEST_F(IsoImages, ALabelCannotBreakTheLine) {
    bytes_.replace(kDescriptor + kLabelAt, 8, "A\r\n\"B\xE9\t%");
    write(folder() / "test.iso", bytes_);
    EXPECT_EQ(text({"cdvd_info2", "test.iso"}), "CD 128KB \"A___B\xE9_%\" \"SLUS_123.45\"\r\n");
}

TEST_F(IsoImages, GarbageIsSurvived) {
    std::minstd_rand numbers(1);
    const std::string whole = bytes_;
    for (int round = 0; round < 200; ++round) {
        bytes_ = whole;
        for (int change = 0; change < 8; ++change) {
            const std::size_t sector = change % 2 == 0 ? kFirstDescriptorSector : 20;
            bytes_.at(sector * kSectorBytes + numbers() % 400) = static_cast<char>(numbers() & 0xFF);
        }
        EXPECT_FALSE(verdict().empty());
    }
}

TEST_F(IsoImages, SystemCnfIsReadInAllItsSpellings) {
    const std::pair<const char*, const char*> spellings[] = {
        {"BOOT2=cdrom0:\\SLES_990.01;1", "SLES_990.01"},
        {"VER = 1.0\nBOOT2 \t=  cdrom0:\\SLES_990.02;1  ", "SLES_990.02"},
        {"BOOT2 = cdrom0:SLES_990.03", "SLES_990.03"},
        {"BOOT2 = cdrom0:\\BIN\\MAIN.ELF;1", "MAIN.ELF"},
        {"BOOT = cdrom:\\SLPS_990.01;1", kNoGame},
        {"BOOT2 =", kNoGame},
        {"", kNoGame},
    };
    const std::size_t at = bytes_.find("BOOT2 = ");
    for (const auto& [content, expected] : spellings) {
        std::string field(57, '\n');
        field.replace(0, std::string(content).size(), content);
        bytes_.replace(at, field.size(), field);
        EXPECT_EQ(verdict(), expected) << content;
    }
}

} // namespace
