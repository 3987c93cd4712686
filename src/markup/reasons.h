#pragma once

namespace markup {

// Why a statement was abandoned, where more than one directive says so: Renderer::check takes them.
inline constexpr char16_t kPenOutside[] = u"la position sort des limites";
inline constexpr char16_t kHeightRefused[] = u"la surface refuse cette hauteur";
inline constexpr char16_t kFontSizeRefused[] = u"la taille de police est hors limites";

} // namespace markup
