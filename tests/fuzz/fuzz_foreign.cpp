// Other programs' database files with hostile bytes in them, read by the reader's own code in a process of its own for
// each: whatever stands in the file, the answer keeps its form to the end, or the process says why it has none. What
// the library itself does not survive is no finding, since a process is all that it takes along. The bytes are changes
// to real files, which lie beside the project; without them nothing is done.
#include "FuzzInput.h"
#include "store/reader/Frames.h"
#include "support/Places.h"

#include <QDir>
#include <QTemporaryDir>
#include <array>
#include <cctype>
#include <csignal>
#include <cstring>
#include <poll.h>
#include <sanitizer/common_interface_defs.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

int readerMain(int count, char **arguments); // that of the program

namespace {
// As the program has them: a reader that is silent for so many seconds, or complains without end, is ended.
constexpr unsigned patience = 10;
constexpr qsizetype longestComplaint = 262'144;
constexpr int endedByDefect = 77;
// The fuzzer sees nothing of the child. It takes an answer of a new kind for a new place that was reached.
constexpr std::size_t mostKinds = 4096;
__attribute__((section("__libfuzzer_extra_counters"))) uint8_t kinds[mostKinds]; // NOLINT: found by its section

struct Answer
{
    QByteArray frames;
    QByteArray complaint;
    int state = 0;
};

[[noreturn]] void fail(const char *what, const Answer &answer)
{
    std::fprintf(stderr, "%s, state %d\n%s\n", what, answer.state, answer.complaint.right(6000).constData());
    std::abort();
}

[[noreturn]] void answerAsReader(QByteArrayList words, const std::array<int, 2> &ends)
{
    __sanitizer_set_death_callback(nullptr); // the fuzzer's own would keep the input as a finding
    std::signal(SIGABRT, SIG_DFL);
    std::signal(SIGALRM, SIG_DFL);
    dup2(ends[0], STDOUT_FILENO);
    dup2(ends[1], STDERR_FILENO);
    alarm(patience);
    std::vector<char *> arguments;
    for (QByteArray &word : words)
        arguments.push_back(word.data());
    _exit(readerMain(int(arguments.size()), arguments.data()));
}

void readToTheEnd(pid_t child, const std::array<int, 2> &ends, Answer &answer)
{
    std::array<pollfd, 2> open{pollfd{ends[0], POLLIN, 0}, pollfd{ends[1], POLLIN, 0}};
    const std::array texts{&answer.frames, &answer.complaint};
    std::array<char, 65536> piece{};
    while (open[0].fd >= 0 || open[1].fd >= 0) {
        poll(open.data(), open.size(), -1);
        for (std::size_t i = 0; i < open.size(); ++i) {
            if (open[i].revents == 0)
                continue;
            const auto length = read(open[i].fd, piece.data(), piece.size());
            if (length > 0)
                texts[i]->append(piece.data(), length);
            else
                close(std::exchange(open[i].fd, -1));
        }
        if (answer.complaint.size() > longestComplaint)
            kill(child, SIGKILL);
    }
}

Answer ask(const QByteArrayList &words)
{
    std::array<int, 2> frames{};
    std::array<int, 2> complaint{};
    if (pipe(frames.data()) != 0 || pipe(complaint.data()) != 0)
        std::abort();
    const pid_t child = fork();
    if (child == 0)
        answerAsReader(words, {frames[1], complaint[1]});
    close(frames[1]);
    close(complaint[1]);
    Answer answer;
    readToTheEnd(child, {frames[0], complaint[0]}, answer);
    waitpid(child, &answer.state, 0);
    return answer;
}

void noteKind(const QByteArray &kind)
{
    kinds[qHash(kind) % mostKinds] = 1;
}

// Each sentence without its numbers, and how it ended.
void noteKinds(const Answer &answer)
{
    noteKind(QByteArray::number(answer.state));
    const QByteArray said = answer.complaint.left(4096) + answer.frames.right(200);
    for (QByteArray line : said.split('\n')) {
        line.removeIf([](char each) { return std::isdigit(uint8_t(each)) != 0 || uint8_t(each) < ' '; });
        noteKind(line.left(40));
    }
}

// The two innermost places of the fault lie in this program: in the reader, or in what the reader has called.
bool isOwnDefect(const QByteArray &complaint)
{
    if (complaint.contains("runtime error:"))
        return true;
    const qsizetype report = complaint.indexOf("AddressSanitizer");
    const qsizetype first = complaint.indexOf("#0 ", report);
    const qsizetype behind = complaint.indexOf("#2 ", first);
    return report >= 0 && first >= 0 && complaint.sliced(first, behind - first).count("/fuzz_foreign+") == 2;
}

// The answer's form, as the program takes it for granted.
void demandForm(const Answer &answer, bool complete)
{
    static const QByteArray values{"NVIDB"};
    qsizetype columns = 0;
    qsizetype wanted = 0; // values that the row still lacks
    char last = 0;
    for (qsizetype place = 0; place < answer.frames.size();) {
        if (last == Frames::End || last == Frames::Failure || answer.frames.size() - place < 5)
            fail("more than one end", answer);
        const char kind = answer.frames[place];
        uint32_t length = 0;
        std::memcpy(&length, answer.frames.constData() + place + 1, sizeof(length));
        place += 5 + qsizetype(length);
        if (length > Frames::maxLength || place > answer.frames.size())
            fail("a frame that is cut off", answer);
        if (values.contains(kind) ? --wanted < 0 : wanted > 0 && kind != Frames::Failure)
            fail("a row of another length than its table", answer);
        if (kind == Frames::Table)
            columns = 0;
        columns += kind == Frames::Column ? 1 : 0;
        wanted = kind == Frames::Row ? columns : wanted;
        last = kind;
    }
    if (last != (complete ? Frames::End : Frames::Failure))
        fail("an answer without its end", answer);
}

QByteArrayList tablesIn(const QByteArray &frames)
{
    QByteArrayList tables;
    for (qsizetype place = 0; place + 5 <= frames.size();) {
        uint32_t length = 0;
        std::memcpy(&length, frames.constData() + place + 1, sizeof(length));
        if (frames[place] == Frames::Table)
            tables.append(frames.mid(place + 6, qsizetype(length) - 1));
        place += 5 + qsizetype(length);
    }
    return tables;
}

/// The frames of a complete answer, "" of every other.
QByteArray demandAnswer(const QByteArrayList &words)
{
    const Answer answer = ask(words);
    noteKinds(answer);
    if (isOwnDefect(answer.complaint))
        fail("the reader is wrong", answer);
    const bool ended = WIFEXITED(answer.state) && WEXITSTATUS(answer.state) != endedByDefect;
    if (ended)
        demandForm(answer, WEXITSTATUS(answer.state) == 0);
    return ended && WEXITSTATUS(answer.state) == 0 ? answer.frames : QByteArray();
}

QList<QByteArray> samples()
{
    QList<QByteArray> found;
    const QDir folder(inSourceTree(u"../shared/mdb"_s));
    for (const QString &name : folder.entryList({u"*.mdb"_s, u"*.accdb"_s}, QDir::Files, QDir::Name)) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            std::abort();
        found.append(file.readAll());
    }
    return found;
}

/// Bytes in fives: a page, a place on it, what stands there. Some of the places are in the page's head, where most of
/// what leads elsewhere stands; many there leave nothing to read.
QByteArray changed(QByteArray file, QByteArrayView changes)
{
    constexpr qsizetype page = 4096;
    constexpr qsizetype head = 64;
    for (; changes.size() >= 5; changes = changes.sliced(5)) {
        const qsizetype number = quint8(changes[0]) | quint8(changes[1]) << 8;
        const qsizetype inPage = quint8(changes[2]) | quint8(changes[3]) << 8;
        const qsizetype place = number * page + inPage % (quint8(changes[3]) < 32 ? head : page);
        file[place % file.size()] = changes[4];
    }
    return file;
}
} // namespace

extern "C" const char *__asan_default_options() // NOLINT: the sanitizer's name
{
    return "exitcode=77:symbolize=0:detect_leaks=0";
}

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    if (samples().isEmpty()) {
        std::fputs("There are no files to begin with.\n", stderr);
        std::exit(0);
    }
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QTemporaryDir folder;
    static const QList<QByteArray> good = samples();
    FuzzInput input(data, size);
    const int sample = input.number(0, int(good.size()) - 1);
    const int wanted = input.number(0, 255);
    const auto head = std::min<size_t>(size, 2);
    const QByteArrayView changes(reinterpret_cast<const char *>(data + head), qsizetype(size - head));
    QFile file(folder.filePath(u"hostile.mdb"_s));
    const QByteArray bytes = changed(good[sample], changes);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        std::abort();
    file.close();
    const QByteArray path = file.fileName().toLocal8Bit();
    const QByteArrayList tables = tablesIn(demandAnswer({"reader", "catalog", path}));
    if (!tables.isEmpty())
        (void)demandAnswer({"reader", "rows", path, tables[wanted % tables.size()]});
    return 0;
}
