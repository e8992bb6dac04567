// Files for the application to open: sound ones, and sound ones with something wrong in them.
#pragma once

#include "tests/monkey/Random.h"

#include <string>
#include <vector>

// Writes models of every kind that the application reads into the folder; their paths, small ones first.
std::vector<std::string> WriteModels(const std::string& folder);
// Writes a copy with a few mistakes beside the file: bytes, lengths, numbers or rows that somebody changed. Its path.
std::string WriteMutated(Random& random, const std::string& path);

// Reads `count` mutated files: each gives a sound model or is refused with a reason; never half of one.
void RunFiles(std::uint64_t seed, int count, const std::string& folder);
// Kills `count` processes in the middle of a save: the file is the old project or the new one.
void RunKills(std::uint64_t seed, int count, const std::string& folder);
