#pragma once
// The batch executable run as a desk would run it: a ready store in a temporary folder, scripts
// of user actions, and the lines the run prints.
#include "frame/Store.h"

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <random>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <vector>

namespace tallimark::test {

struct Outcome {
    int exitCode = -1;
    std::vector<std::string> lines;
    std::string all() const {
        std::string s;
        for (const auto& l : lines)
            s += l + "\n";
        return s;
    }
    // The last dump of a screen, "" when there was none.
    std::string dump(const std::string& screen) const {
        for (auto it = lines.rbegin(); it != lines.rend(); ++it)
            if (it->rfind("{\"dump\":\"" + screen + "\"", 0) == 0) return *it;
        return {};
    }
};

// The text of a field in a dump line.
inline std::string dumpField(const std::string& dump, const std::string& name) {
    const std::string mark = "\"" + name + R"(":{"text":")";
    const size_t at = dump.find(mark);
    if (at == std::string::npos) return "<missing " + name + ">";
    const size_t from = at + mark.size();
    return dump.substr(from, dump.find('"', from) - from);
}

inline bool contains(const std::string& s, const std::string& part) {
    return s.find(part) != std::string::npos;
}

class BatchFixture : public ::testing::Test {
protected:
    void SetUp() override {
        std::random_device rd;
        dir_ = std::filesystem::temp_directory_path() / ("tallimark-batch-" + std::to_string(rd()));
        std::filesystem::create_directories(dir_);
        ASSERT_EQ(run("--data " + dir_.string() + " --new-store").exitCode, 0);
    }
    void TearDown() override { std::filesystem::remove_all(dir_); }

    Outcome run(const std::string& args) {
        Outcome r;
        const std::string cmd = std::string(TALLIMARK_BATCH_EXE) + " " + args + " 2>&1";
        FILE* p = popen(cmd.c_str(), "r");
        std::array<char, 4096> buf{};
        std::string out;
        while (size_t n = fread(buf.data(), 1, buf.size(), p))
            out.append(buf.data(), n);
        const int status = pclose(p);
        r.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        std::istringstream in(out);
        for (std::string line; std::getline(in, line);)
            r.lines.push_back(line);
        return r;
    }

    Outcome script(const std::string& text) {
        const auto file = dir_ / "script.txt";
        std::ofstream(file) << text;
        return run("--data " + dir_.string() + " --today 2026-11-23 " + file.string());
    }

    std::filesystem::path storeFile() const { return dir_ / "shares.db"; }
    // The store as a run left it, open between runs.
    std::unique_ptr<Store> store() const { return Store::open(storeFile()); }

    std::filesystem::path dir_;
};

// A report goes to a PDF only from a batch built with the rendering layer; without it the
// report's JSON line is all there is to check.
inline std::string printLine(const std::filesystem::path& pdf) {
#ifdef TALLIMARK_RENDER
    return "print " + pdf.string() + "\n";
#else
    (void)pdf;
    return "";
#endif
}

inline void expectPdf(const std::filesystem::path& pdf) {
#ifdef TALLIMARK_RENDER
    EXPECT_GT(std::filesystem::file_size(pdf), 1000u) << pdf;
#else
    (void)pdf;
#endif
}

} // namespace tallimark::test
