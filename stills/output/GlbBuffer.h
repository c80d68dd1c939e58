/// The binary chunk of a glTF file, and the accessors that say what is in it.
#pragma once

#include "stills/Still.h"

#include <cstdint>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

namespace orvane::stills {

class GlbBuffer {
 public:
  /// Each adds numbers and returns the index of their accessor.
  int AddVectors(const std::vector<Vec3>& vectors, bool withBounds);
  int AddIndices(const std::vector<std::uint32_t>& indices, std::size_t vertices);
  /// For an animation, vectors or times.
  int AddKeys(const std::vector<Vec3>& vectors);
  int AddTimes(const std::vector<float>& times);

  /// The whole file, of a document to which buffers and accessors are added.
  std::string File(nlohmann::ordered_json document) &&;

 private:
  enum View { kVertices, kIndices, kKeys };

  int Add(View view, int componentType, const char* type, std::size_t count, const void* data,
          std::size_t size);

  std::string m_bytes[3];
  nlohmann::ordered_json m_accessors = nlohmann::ordered_json::array();
};

}  // namespace orvane::stills
