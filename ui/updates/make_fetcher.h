// The network as the update check sees it.
#pragma once

#include <chrono>
#include <memory>

#include "update/fetcher.h"

namespace tricklet::ui {

/// The longest that an answer is waited for, from the question to its last byte.
inline constexpr std::chrono::milliseconds kFetchPatience{10000};

/// Asks by HTTP as `Fetcher` promises. All that the other side learns is the program's name and
/// version: there are no cookies, no languages and no referring page. Five redirects are followed
/// at the most, and only those that `MayRedirect` allows. Null in a program that is built without
/// the update check (TRICKLET_UPDATE_CHECK), which has no network at all.
std::unique_ptr<Fetcher> MakeFetcher(std::chrono::milliseconds patience = kFetchPatience);

}  // namespace tricklet::ui
