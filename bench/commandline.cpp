// calora-files: files a second, start, and whether memory grows with the number of files.

#include "bench/rows.h"

#include <QByteArrayList>

#include <cstdio>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace bench {

namespace {

// A run checks as many files as give a steady number by themselves.
constexpr int fewRuns = 5;
constexpr int fewFiles = 20;
constexpr int manyFiles = 120;
constexpr int anOfficesFiles = 10000;

/// What a finished process has used.
struct Usage {
    double milliseconds = 0; ///< of processors
    double memory = 0;       ///< kB, at most
};

Usage run(const QByteArrayList &arguments)
{
    const pid_t child = fork();
    if (child == 0) {
        std::vector<char *> list;
        QByteArrayList copies{QByteArrayLiteral(CALORA_FILES)};
        copies += arguments;
        for (QByteArray &argument : copies) {
            list.push_back(argument.data());
        }
        list.push_back(nullptr);
        if (freopen("/dev/null", "w", stdout) != nullptr) {
            execv(list.front(), list.data());
        }
        _exit(127);
    }
    int status = 0;
    rusage used{};
    if (child < 0 || wait4(child, &status, 0, &used) != child || !WIFEXITED(status)
        || WEXITSTATUS(status) > 1) {
        qFatal("Can't run %s", CALORA_FILES);
    }
    const auto milliseconds = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
    };
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-union-access): the C library has it in one
    return {milliseconds(used.ru_utime) + milliseconds(used.ru_stime), static_cast<double>(used.ru_maxrss)};
}

Usage check(int files, const QByteArrayList &options)
{
    QByteArrayList arguments{QByteArrayLiteral("check")};
    arguments += options;
    for (int file = 0; file < files; ++file) {
        arguments += QByteArrayLiteral(CALORA_SETTINGS);
    }
    return run(arguments);
}

} // namespace

std::vector<Row> commandLineRows()
{
    constexpr double second = 1000;
    constexpr double aTenth = 100;
    const QByteArrayList withoutPages{QByteArrayLiteral("--no-pages")};
    Numbers start;
    Numbers plain;
    Numbers pages;
    Numbers growth;
    for (int time = 0; time < fewRuns; ++time) {
        start.push_back(run({QByteArrayLiteral("diff"), QByteArrayLiteral("--default"),
                             QByteArrayLiteral(CALORA_SETTINGS)})
                            .milliseconds);
        const Usage few = check(fewFiles, {});
        const Usage many = check(manyFiles, {});
        // The start, and the making of the window, are left out.
        pages.push_back((many.milliseconds - few.milliseconds) / (manyFiles - fewFiles));
        growth.push_back(many.memory / few.memory);
        plain.push_back(
            (check(manyFiles, withoutPages).milliseconds - check(fewFiles, withoutPages).milliseconds)
            / (manyFiles - fewFiles));
    }
    // The names alone take a tenth.
    const double ofAnOffice = check(anOfficesFiles, withoutPages).memory
        / check(fewFiles, withoutPages).memory;
    return {
        {QStringLiteral("calora-files: start to end of a comparison"), QStringLiteral("a tenth of a second"),
         ratios(start, aTenth), 1},
        {QStringLiteral("calora-files: a file checked without pages"), QStringLiteral("one of 100 a second"),
         ratios(plain, second / 100), 1},
        {QStringLiteral("calora-files: a file checked by the pages"), QStringLiteral("one of 30 a second"),
         ratios(pages, second / 30), 1},
        {QStringLiteral("calora-files: memory with %1 files").arg(manyFiles),
         QStringLiteral("with %1").arg(fewFiles), growth, 1.1},
        {QStringLiteral("calora-files: memory with %1 files, without pages").arg(anOfficesFiles),
         QStringLiteral("with %1").arg(fewFiles),
         {ofAnOffice},
         1.2},
    };
}

} // namespace bench
