#ifndef VARNEL_BENCH_DOCUMENTGENERATOR_H
#define VARNEL_BENCH_DOCUMENTGENERATOR_H

#include <cstddef>
#include <string>

namespace varnel::bench {

/// The text of a project document of about that many bytes: plates with outlines of straight edges and edge
/// supports, point and line loads. The same seed gives the same text.
std::string makeDocument(std::size_t bytes, unsigned seed = 1);

}  // namespace varnel::bench

#endif
