#include "stills/output/GlbBuffer.h"

#include <algorithm>

namespace orvane::stills {

namespace {

constexpr int kUnsignedShort = 5123, kUnsignedInt = 5125, kFloat = 5126;
constexpr int kArrayBuffer = 34962, kElementArrayBuffer = 34963;

void PutNumber(std::string& bytes, std::size_t number) {
  for (int i = 0; i < 4; ++i) bytes += static_cast<char>(number >> (8 * i) & 0xFF);
}

}  // namespace

int GlbBuffer::Add(View view, int componentType, const char* type, std::size_t count,
                   const void* data, std::size_t size) {
  std::string& bytes = m_bytes[view];
  m_accessors.push_back({{"bufferView", view},
                         {"byteOffset", bytes.size()},
                         {"componentType", componentType},
                         {"count", count},
                         {"type", type}});
  bytes.append(static_cast<const char*>(data), size);
  bytes.resize((bytes.size() + 3) / 4 * 4, '\0');
  return static_cast<int>(m_accessors.size()) - 1;
}

int GlbBuffer::AddVectors(const std::vector<Vec3>& vectors, bool withBounds) {
  const int added =
      Add(kVertices, kFloat, "VEC3", vectors.size(), vectors.data(), vectors.size() * sizeof(Vec3));
  if (!withBounds) return added;
  Vec3 low = vectors[0], high = low;
  for (const Vec3& vector : vectors) {
    for (std::size_t i = 0; i < 3; ++i) {
      low[i] = std::min(low[i], vector[i]);
      high[i] = std::max(high[i], vector[i]);
    }
  }
  m_accessors.back()["min"] = low;
  m_accessors.back()["max"] = high;
  return added;
}

int GlbBuffer::AddIndices(const std::vector<std::uint32_t>& indices, std::size_t vertices) {
  if (vertices > 0xFFFF) {
    return Add(kIndices, kUnsignedInt, "SCALAR", indices.size(), indices.data(),
               4 * indices.size());
  }
  std::vector<std::uint16_t> shorts;
  shorts.reserve(indices.size());
  for (const std::uint32_t index : indices) shorts.push_back(static_cast<std::uint16_t>(index));
  return Add(kIndices, kUnsignedShort, "SCALAR", shorts.size(), shorts.data(), 2 * shorts.size());
}

int GlbBuffer::AddKeys(const std::vector<Vec3>& vectors) {
  return Add(kKeys, kFloat, "VEC3", vectors.size(), vectors.data(), vectors.size() * sizeof(Vec3));
}

int GlbBuffer::AddTimes(const std::vector<float>& times) {
  const int added = Add(kKeys, kFloat, "SCALAR", times.size(), times.data(), 4 * times.size());
  m_accessors.back()["min"] = {times.front()};
  m_accessors.back()["max"] = {times.back()};
  return added;
}

std::string GlbBuffer::File(nlohmann::ordered_json document) && {
  std::string all;
  std::array<int, 3> place{};  // of each part that is not empty
  for (const View view : {kVertices, kIndices, kKeys}) {
    if (m_bytes[view].empty()) continue;
    nlohmann::ordered_json entry = {
        {"buffer", 0}, {"byteOffset", all.size()}, {"byteLength", m_bytes[view].size()}};
    if (view == kVertices) entry["byteStride"] = sizeof(Vec3);
    if (view != kKeys) entry["target"] = view == kVertices ? kArrayBuffer : kElementArrayBuffer;
    place[view] = static_cast<int>(document["bufferViews"].size());
    document["bufferViews"].push_back(std::move(entry));
    all += m_bytes[view];
  }
  for (auto& accessor : m_accessors)
    accessor["bufferView"] = place[accessor["bufferView"].get<std::size_t>()];
  document["accessors"] = std::move(m_accessors);
  document["buffers"] = {{{"byteLength", all.size()}}};

  std::string text = document.dump();
  text.resize((text.size() + 3) / 4 * 4, ' ');
  std::string file = "glTF";
  PutNumber(file, 2);
  PutNumber(file, 28 + text.size() + all.size());
  PutNumber(file, text.size());
  file += "JSON" + text;
  PutNumber(file, all.size());
  file += std::string("BIN\0", 4);
  return file + all;
}

}  // namespace orvane::stills
