#include "orvane/components/TextInfo.h"

#include "orvane/automation/Describe.h"
#include "orvane/automation/Trimmed.h"
#include "orvane/scene/frmMain.h"

namespace orvane {

const host::TypeInfo& TextInfo::Type() const {
  static const host::TypeInfo type =
      host::Describe<TextInfo>("A line of text, fixed in the world or turning to face the viewer.")
          .Property<bool>("IsBillboarded", &TextInfo::IsBillboarded, &TextInfo::IsBillboarded,
                          {"Whether the text turns to face the viewer"})
          .Property<std::string>("Text", &TextInfo::Text, &TextInfo::Text,
                                 {"The line; spaces around it are dropped"})
          .Color("TextColor", &TextInfo::TextColor, &TextInfo::TextColor, {"Colour of the text"})
          .Property<VRMLFontFamily>("TextFont", &TextInfo::TextFont, &TextInfo::TextFont,
                                    {"Font family"})
          .Property<VRMLFontStyle>("TextStyle", &TextInfo::TextStyle, &TextInfo::TextStyle,
                                   {"Font style"})
          .Property<float>("TextHeight", &TextInfo::TextHeight, &TextInfo::TextHeight,
                           {"Height of the line", "scene units", host::kPositive});
  return type;
}

TextInfo::TextInfo() : m_billboard(scene::Create<scene::Billboard>()) {
  Root()->children.Append(m_line.Node());
}

void TextInfo::IsBillboarded(bool isBillboarded) {
  if (isBillboarded == m_isBillboarded) return;
  Root()->children.Clear();
  m_billboard->children.Clear();
  if (isBillboarded) {
    Root()->children.Append(m_billboard);
    m_billboard->children.Append(m_line.Node());
  } else {
    Root()->children.Append(m_line.Node());
  }
  m_isBillboarded = isBillboarded;
}

void TextInfo::Text(const std::string& text) { m_line.FirstLine(host::Trimmed(text)); }

void TextInfo::TextHeight(float height) {
  m_line.Height(height, "Invalid Text height, must be greater than 0");
}

}  // namespace orvane
