#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <utility>

#include "cli/Console.h"
#include "data/BlankImage.h"
#include "data/DataFile.h"
#include "data/TestImages.h"
#include "fakes/FakeFileStore.h"

namespace zelvor::cli {

/// A command on files in memory, with what it says.
class CliTest : public ::testing::Test {
protected:
    /// Model 4618, market M.
    static DataImage Blank() {
        DataImage image;
        image.Set(0x1BD, 1);
        image.Set(0x1BE, 0xF8);
        InitAllFrameData(image);
        return image;
    }

    /// The same with channel 2 on 145.125 MHz and channel 16 on 150 MHz, receiving only.
    static DataImage Programmed() {
        DataImage image = Blank();
        testing::StoreHex(image, 0x020, "00255114002551147203132800BFB0F8");
        testing::StoreHex(image, 0x100, "00000015FFFFFFFFFFFFFFFF00BFB0F8");
        image.Set(0x17E, 0x02);
        return image;
    }

    static std::string ContentOf(const DataImage& image) {
        const DataFileBytes bytes = EncodeDataFile(image);
        return {bytes.begin(), bytes.end()};
    }

    void Put(const std::string& path, const DataImage& image) { store.Put(path, ContentOf(image)); }

    [[nodiscard]] DataImage ImageIn(const std::string& path) const {
        const std::string content = store.Content(path);
        const auto image = DecodeDataFile({reinterpret_cast<const std::uint8_t*>(content.data()), content.size()});
        EXPECT_TRUE(image.has_value()) << path;
        return image.value_or(DataImage());
    }

    /// What was said since the last call.
    std::string Out() { return std::exchange(out, std::ostringstream()).str(); }
    std::string Err() { return std::exchange(err, std::ostringstream()).str(); }

    FakeFileStore store;
    std::ostringstream out;
    std::ostringstream err;
    Console console{out, err, Language::English};
    Console chinese{out, err, Language::Chinese};
};

} // namespace zelvor::cli
