// A program with what leaves a mark only where there is some of it: room on the stack of more than a page,
// and calls of the C library into room whose size the compiler or, for level 3 of _FORTIFY_SOURCE, the
// running program knows. hardening.py looks at it and never runs it.

#include <array>
#include <cstddef>
#include <cstring>
#include <memory>

namespace {

std::size_t knownRoom(const char *text)
{
    std::array<char, 64> room{};
    std::memcpy(room.data(), text, std::strlen(text));
    return std::strlen(room.data());
}

std::size_t roomKnownAtRunTime(const char *text, std::size_t size)
{
    const std::unique_ptr<char[]> room(new char[size]);
    std::memmove(room.get(), text, std::strlen(text));
    return std::strlen(room.get());
}

std::size_t manyPages(const char *text)
{
    constexpr std::size_t page = 4096;
    constexpr std::size_t size = 5 * page;
    std::array<volatile char, size> room;
    for (volatile char &place : room) {
        place = *text;
    }
    return static_cast<std::size_t>(room[page]);
}

} // namespace

int main(int count, char *arguments[])
{
    const char *text = arguments[0];
    return static_cast<int>(knownRoom(text) + roomKnownAtRunTime(text, static_cast<std::size_t>(count))
                            + manyPages(text))
        & 1;
}
