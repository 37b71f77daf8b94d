#include "store/reader/FrameWriter.h"
#include "store/reader/Limits.h"

#include <array>
#include <cstdlib>
#include <stdexcept>

namespace {
constexpr int nobodyReads = 3;

std::FILE *output = stdout;

void put(const void *bytes, std::size_t count)
{
    if (std::fwrite(bytes, 1, count, output) != count)
        std::_Exit(nobodyReads);
}
} // namespace

void beginFrames()
{
    output = takeStandardOutput();
}

void writeFrame(Frames::Kind kind, std::string_view bytes)
{
    if (bytes.size() > Frames::maxLength)
        throw std::length_error("A value is too long.");
    const auto length = static_cast<std::uint32_t>(bytes.size());
    const std::array<unsigned char, 5> head{
        static_cast<unsigned char>(kind), static_cast<unsigned char>(length), static_cast<unsigned char>(length >> 8U),
        static_cast<unsigned char>(length >> 16U), static_cast<unsigned char>(length >> 24U)};
    put(head.data(), head.size());
    if (!bytes.empty())
        put(bytes.data(), bytes.size());
}

void flushFrames()
{
    if (std::fflush(output) != 0)
        std::_Exit(nobodyReads);
}
