// The reference tables and the info index report what they cannot read and never throw.

#include <cstddef>
#include <cstdint>
#include <memory>

#include "fuzz/one_file.h"
#include "import/reference_tables.h"
#include "notes/info_index.h"
#include "roller/visability_table.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  ng::OneFile files(std::string(reinterpret_cast<const char*>(data), size));
  ng::LoadGearTable(files, "");
  ng::LoadRangeTable(files, "");
  const auto skills = ng::LoadSkillTable(files, "");
  ng::ConvertSkill(skills.table, "Pistols");
  ng::LoadVisability(files, "");
  const auto index = std::make_unique<ng::InfoIndex>();
  index->Load(files, {"info.dat"});
  for (const int entry : index->Matching("")) index->EntryText(files, entry);
  return 0;
}
