// Plays the service tools of Windows, for FakeServiceTools: copies of it bear their names. It uses no library, so that
// it starts anywhere, and works in the current directory.

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <windows.h>

namespace {

/// The first bytes of the file; enough for what the tests write.
struct Content {
    char bytes[4096] = {};
    size_t size = 0;
};

Content contentOf(const char *name)
{
    Content content;
    if (FILE *file = std::fopen(name, "rb")) {
        content.size = std::fread(content.bytes, 1, sizeof content.bytes - 1, file);
        std::fclose(file);
    }
    return content;
}

void noteCall(const char *call)
{
    if (FILE *file = std::fopen("calls", "ab")) {
        std::fprintf(file, "%s\n", call);
        std::fclose(file);
    }
}

} // namespace

int main(int argc, char **argv)
{
    constexpr int wrongUse = 64;
    if (argc != 3 || std::strcmp(argv[2], "SchedulerService") != 0)
        return wrongUse;
    if (std::strcmp(argv[1], "query") == 0) {
        noteCall("show");
        const Content output = contentOf("output");
        std::fwrite(output.bytes, 1, output.size, stdout);
        return 3;
    }
    if (std::strcmp(argv[1], "start") != 0)
        return wrongUse;
    noteCall("start");
    const Content start = contentOf("start");
    if (std::strcmp(start.bytes, "hang") == 0)
        Sleep(INFINITE); // UNAVOIDABLE: a tool that never ends is what is played
    return std::atoi(start.bytes);
}
