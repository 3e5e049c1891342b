#pragma once

#include "model/PlixDataIcon.h"
#include "model/PlixDataImage.h"
#include "model/format/PlixCommonKeys.h"

#include <array>

namespace plix {

inline constexpr auto kImageKeys =
    JoinKeys(std::to_array<PlixJsonKey<PlixDataImage>>({
                 StringKey<PlixDataImage, &PlixDataImage::SetUrl>(
                     {.name = "url",
                      .rule = PlixValueRule::Url,
                      .description = "The address of the picture."}),
                 StringKey<PlixDataImage, &PlixDataImage::SetSize>({.name = "size",
                                                                    .rule = PlixValueRule::Word,
                                                                    .words = Words<kImageSizes>(),
                                                                    .fallback = "\"md\"",
                                                                    .description = "Its width."}),
                 StringKey<PlixDataImage, &PlixDataImage::SetAspectRatio>(
                     {.name = "aspectRatio",
                      .rule = PlixValueRule::Ratio,
                      .fallback = "\"1:1\"",
                      .description = "Its width and its height, such as 16:9."}),
                 StringKey<PlixDataImage, &PlixDataImage::SetAspectMode>(
                     {.name = "aspectMode",
                      .rule = PlixValueRule::Word,
                      .words = Words<kAspectModes>(),
                      .fallback = "\"fit\"",
                      .description = "What happens to a picture of another shape."}),
                 StringKey<PlixDataImage, &PlixDataImage::SetAlign>(
                     {.name = "align",
                      .rule = PlixValueRule::Word,
                      .words = Words<kAligns>(),
                      .description = "Where the picture is from side to side, if there is room."}),
                 StringKey<PlixDataImage, &PlixDataImage::SetGravity>(
                     {.name = "gravity",
                      .rule = PlixValueRule::Word,
                      .words = Words<kGravities>(),
                      .description = "Where the picture is from top to bottom, if there is room."}),
                 StringKey<PlixDataImage, &PlixDataImage::SetBackgroundColor>(
                     {.name = "backgroundColor",
                      .rule = PlixValueRule::Color,
                      .description = "Its background, also while the picture is loading."}),
                 UrlsKey<PlixDataImage>(),
             }),
             CommonKeys<PlixDataImage>(),
             std::to_array<PlixJsonKey<PlixDataImage>>({ActionKey<PlixDataImage>()}));

inline constexpr auto kIconKeys =
    JoinKeys(std::to_array<PlixJsonKey<PlixDataIcon>>({
                 StringKey<PlixDataIcon, &PlixDataIcon::SetSize>({.name = "size",
                                                                  .rule = PlixValueRule::Word,
                                                                  .words = Words<kTextSizes>(),
                                                                  .fallback = "\"md\"",
                                                                  .description = "Its height."}),
                 StringKey<PlixDataIcon, &PlixDataIcon::SetUrl>(
                     {.name = "url",
                      .rule = PlixValueRule::Url,
                      .description = "The address of the picture."}),
                 StringKey<PlixDataIcon, &PlixDataIcon::SetAspectRatio>(
                     {.name = "aspectRatio",
                      .rule = PlixValueRule::Ratio,
                      .fallback = "\"1:1\"",
                      .description = "Its width and its height, such as 2:1."}),
                 UrlsKey<PlixDataIcon>(),
             }),
             CommonKeys<PlixDataIcon>());

} // namespace plix
