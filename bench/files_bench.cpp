// SPDX-License-Identifier: GPL-3.0-or-later
// Reading and writing a model, from and to a temporary folder.
#include <charconv>
#include <filesystem>
#include <fstream>
#include <string>

#include "files/disk.h"
#include "files/model_file.h"
#include "workload.h"

#include <benchmark/benchmark.h>

namespace kervol::bench {
namespace {

std::string Bench_File() {
    return (std::filesystem::temp_directory_path() / "kervol-bench.kvl").string();
}

void Write_Model(benchmark::State& state) {
    Workload work("watt");
    for (auto _ : state) {
        Save_Model_As(*work.program, Bench_File());
        work.port.messages.clear();
    }
}
BENCHMARK(Write_Model);

/// The same bytes over an existing file through a plain stream, nothing kept.
void Write_Same_Bytes(benchmark::State& state) {
    const std::string content = Read_Whole_File(Bench_File());
    const std::string path = Bench_File() + ".plain";
    for (auto _ : state) std::ofstream(path, std::ios::binary) << content;
    std::filesystem::remove(path);
}
BENCHMARK(Write_Same_Bytes);

void Read_Model(benchmark::State& state) {
    Workload work("watt");
    for (auto _ : state) Open_Model(*work.program, Bench_File());
}
BENCHMARK(Read_Model);

/// The file as a whole, and each of its numbers, taken without a look at what they mean.
void Read_Same_Numbers(benchmark::State& state) {
    for (auto _ : state) {
        const std::string content = Read_Whole_File(Bench_File());
        const char *at = content.data(), *const end = at + content.size();
        float number = 0;
        while (at != end) {
            if (*at != '"') at = std::from_chars(at, end, number).ptr;
            benchmark::DoNotOptimize(number);
            while (at != end && *at != '\n') ++at;
            if (at != end) ++at;
        }
    }
}
BENCHMARK(Read_Same_Numbers);

void Parse_Model(benchmark::State& state) {
    Workload work("watt");
    const std::string content = Read_Whole_File(Bench_File());
    for (auto _ : state) {
        ValueReader file(content);
        Readfile(*work.program, file);
    }
}
BENCHMARK(Parse_Model);

}  // namespace
}  // namespace kervol::bench
