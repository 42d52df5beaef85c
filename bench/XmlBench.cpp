#include <benchmark/benchmark.h>

#include <charconv>
#include <cstdlib>
#include <memory>
#include <pugixml.hpp>
#include <sstream>
#include <streambuf>

#include "bench/DocumentGenerator.h"
#include "varnel/contracts/KzXmlDataUtil.h"
#include "varnel/contracts/KzXmlTree.h"
#include "varnel/contracts/TextNumbers.h"

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace {

/// Reads from a text that it does not copy.
class View : public std::streambuf {
  public:
    explicit View(const std::string &text) {
        char *begin = const_cast<char *>(text.data());
        setg(begin, begin, begin + text.size());
    }

  protected:
    pos_type seekoff(off_type offset, std::ios_base::seekdir from, std::ios_base::openmode) override {
        char *base = from == std::ios_base::beg ? eback() : from == std::ios_base::cur ? gptr() : egptr();
        setg(eback(), base + offset, egptr());
        return gptr() - eback();
    }
    pos_type seekpos(pos_type place, std::ios_base::openmode which) override {
        return seekoff(off_type(place), std::ios_base::beg, which);
    }
};

/// Swallows what is written.
struct Sink : std::streambuf {
    std::size_t bytes = 0;
    std::streamsize xsputn(const char *, std::streamsize size) override {
        bytes += static_cast<std::size_t>(size);
        return size;
    }
    int_type overflow(int_type c) override {
        ++bytes;
        return traits_type::not_eof(c);
    }
};

const std::string &document(std::size_t megabytes) {
    static std::string texts[32];
    if (texts[megabytes].empty()) texts[megabytes] = varnel::bench::makeDocument(megabytes << 20);
    return texts[megabytes];
}

void setBytes(benchmark::State &state, std::size_t bytes) {
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * static_cast<std::int64_t>(bytes));
}

/// Gives free memory back to the system: a program opens its document once, with memory that it has not had
/// yet.
void forgetMemory() {
#if defined(__GLIBC__)
    malloc_trim(0);
#endif
}

void readWithVarnel(benchmark::State &state) {
    const std::string &text = document(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        auto tree = std::make_unique<KzXmlTree>("R");
        View view(text);
        std::istream stream(&view);
        tree->buildOfStream(stream);
        benchmark::DoNotOptimize(tree->getRoot());
        state.PauseTiming();
        tree.reset();
        if (state.range(1)) forgetMemory();
        state.ResumeTiming();
    }
    setBytes(state, text.size());
}

void readWithPugixml(benchmark::State &state) {
    const std::string &text = document(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        auto tree = std::make_unique<pugi::xml_document>();
        View view(text);
        std::istream stream(&view);
        tree->load(stream);
        benchmark::DoNotOptimize(tree->first_child());
        state.PauseTiming();
        tree.reset();
        if (state.range(1)) forgetMemory();
        state.ResumeTiming();
    }
    setBytes(state, text.size());
}

void writeWithVarnel(benchmark::State &state) {
    const std::string &text = document(static_cast<std::size_t>(state.range(0)));
    KzXmlTree tree("R");
    View view(text);
    std::istream in(&view);
    tree.buildOfStream(in);
    for (auto _ : state) {
        Sink sink;
        std::ostream out(&sink);
        tree.putToStream(out, true);
        benchmark::DoNotOptimize(sink.bytes);
    }
    setBytes(state, text.size());
}

void writeWithPugixml(benchmark::State &state) {
    const std::string &text = document(static_cast<std::size_t>(state.range(0)));
    pugi::xml_document tree;
    View view(text);
    std::istream in(&view);
    tree.load(in);
    for (auto _ : state) {
        Sink sink;
        std::ostream out(&sink);
        tree.save(out, "  ");
        benchmark::DoNotOptimize(sink.bytes);
    }
    setBytes(state, text.size());
}

void freeTree(benchmark::State &state) {
    const std::string &text = document(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        state.PauseTiming();
        auto tree = std::make_unique<KzXmlTree>("R");
        View view(text);
        std::istream stream(&view);
        tree->buildOfStream(stream);
        state.ResumeTiming();
        tree.reset();
    }
}

#if defined(__GLIBC__)
std::size_t allocated() {
    const auto info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

/// Live bytes of the tree for each byte of the document.
void treeMemory(benchmark::State &state) {
    const std::string &text = document(static_cast<std::size_t>(state.range(0)));
    double share = 0;
    for (auto _ : state) {
        const std::size_t before = allocated();
        KzXmlTree tree("R");
        View view(text);
        std::istream stream(&view);
        tree.buildOfStream(stream);
        share = static_cast<double>(allocated() - before) / static_cast<double>(text.size());
    }
    state.counters["bytes/byte"] = share;
}
BENCHMARK(treeMemory)->Arg(20)->Iterations(1)->Unit(benchmark::kMillisecond);
#endif

/// Writers open each element of a list by its key: the time of one must not grow with the list.
void keyedOpens(benchmark::State &state) {
    const int count = static_cast<int>(state.range(0));
    for (auto _ : state) {
        KzXmlTree tree("R");
        for (int i = 0; i < count; ++i)
            KzXmlDataUtil::openToAttribute(tree.getRoot(), "PLATE", "NUMBER", i)
                ->setAttribute("TYPE", 1, true);
        for (int i = 0; i < count; ++i)
            benchmark::DoNotOptimize(KzXmlDataUtil::openToAttribute(tree.getRoot(), "PLATE", "NUMBER", i));
    }
    state.SetComplexityN(count);
}

void nested(benchmark::State &state) {
    for (auto _ : state) {
        KzXmlTree tree("R");
        for (std::int64_t i = 0; i < state.range(0); ++i) tree.open("A");
        Sink sink;
        std::ostream out(&sink);
        tree.putToStream(out, false);
    }
    state.SetComplexityN(state.range(0));
}

template <class Format>
void formatNumbers(benchmark::State &state, Format format) {
    const double values[] = {0.0, 12.35, -3.5, 97.85 + 1e-14, 0.25, 6.4, 140.2, 3.0};
    std::size_t i = 0;
    for (auto _ : state) benchmark::DoNotOptimize(format(values[++i % std::size(values)]));
}

template <class Parse>
void parseNumbers(benchmark::State &state, Parse parse) {
    const std::string texts[] = {"0", "12.35", "-3.5", "97.85000000000001", "0.25", "6.4", "140.2", "3"};
    std::size_t i = 0;
    for (auto _ : state) benchmark::DoNotOptimize(parse(texts[++i % std::size(texts)]));
}

void formatWithVarnel(benchmark::State &state) {
    formatNumbers(state, [](double value) { return varnel::NumberText(value).view().size(); });
}

void formatWithToChars(benchmark::State &state) {
    formatNumbers(state, [](double value) {
        char chars[32];
        return std::to_chars(chars, chars + sizeof chars, value).ptr - chars;
    });
}

void parseWithVarnel(benchmark::State &state) {
    parseNumbers(state, [](const std::string &text) { return varnel::readDouble(text); });
}

void parseWithFromChars(benchmark::State &state) {
    parseNumbers(state, [](const std::string &text) {
        double value = 0;
        std::from_chars(text.data(), text.data() + text.size(), value);
        return value;
    });
}

}  // namespace

BENCHMARK(readWithPugixml)
    ->ArgNames({"MB", "fresh"})
    ->Args({1, 0})
    ->Args({20, 0})
    ->Args({20, 1})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(readWithVarnel)
    ->ArgNames({"MB", "fresh"})
    ->Args({1, 0})
    ->Args({20, 0})
    ->Args({20, 1})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(writeWithPugixml)->Arg(1)->Arg(20)->Unit(benchmark::kMillisecond);
BENCHMARK(writeWithVarnel)->Arg(1)->Arg(20)->Unit(benchmark::kMillisecond);
BENCHMARK(freeTree)->Arg(20)->Unit(benchmark::kMillisecond);
BENCHMARK(keyedOpens)
    ->RangeMultiplier(10)
    ->Range(10000, 1000000)
    ->Complexity()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(nested)->RangeMultiplier(10)->Range(10000, 1000000)->Complexity()->Unit(benchmark::kMillisecond);
BENCHMARK(formatWithToChars);
BENCHMARK(formatWithVarnel);
BENCHMARK(parseWithFromChars);
BENCHMARK(parseWithVarnel);

BENCHMARK_MAIN();
