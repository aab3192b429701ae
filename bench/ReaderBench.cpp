// SPDX-License-Identifier: MIT

// Times the engine's steps on one photograph: build/release/bin/reader-bench PHOTOGRAPH
// bench/compare.sh holds whole commands against other programs.

#include "collection/DocumentLoad.h"
#include "common/ErrorReport.h"
#include "document/MetadataDocument.h"
#include "writer/JpegDocument.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

std::string photograph;

class Silent : public ovisto::ErrorReporter {
public:
    void report(const ovisto::Phrase& /*context*/, const ovisto::Error& /*error*/) override {}
};

void translate(benchmark::State& state)
{
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(ovisto::JpegXml().XMLtranslate(photograph).text);
}
BENCHMARK(translate);

void parseDocument(benchmark::State& state)
{
    const std::string text = ovisto::JpegXml().XMLtranslate(photograph).text;
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(ovisto::documentOf(text));
}
BENCHMARK(parseDocument);

void rewriteSynced(benchmark::State& state)
{
    ovisto::XmlDocument document = ovisto::loadDocument(photograph);
    Silent reporter;
    for ([[maybe_unused]] auto _ : state)
        ovisto::JpegDocument(reporter, ovisto::documentReader(ovisto::Reading::Basic)).WriteJpeg(document, photograph);
}

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (argc < 2)
        return 2;
    photograph = argv[1];
    const bool mayRewrite = argc > 2 && std::string(argv[2]) == "--rewrite";
    if (mayRewrite)
        benchmark::RegisterBenchmark("rewriteSynced", rewriteSynced);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
