#include "fileio/decode/libraries/jpeg/jpegFacts.h"
#include <map>

namespace velara::decode {

namespace {

using namespace std::string_view_literals;

/// A profile comes in numbered parts, in any order.
class Profile {
  public:
    void add(Span part) // number, count, bytes
    {
        if (part.size() < 2) return;
        count_ = part[1];
        parts_.emplace(part[0], part.subspan(2));
    }
    std::vector<std::uint8_t> whole() const
    {
        std::vector<std::uint8_t> bytes;
        for (std::size_t number = 1; number <= count_; ++number) {
            const auto part = parts_.find(number);
            if (part == parts_.end() || bytes.size() + part->second.size() > kMostProfile) return {};
            bytes.insert(bytes.end(), part->second.begin(), part->second.end());
        }
        return bytes;
    }

  private:
    std::size_t count_ = 0;
    std::map<std::size_t, Span> parts_;
};

void takeDensity(Carried& carried, Span jfif) // version, unit, across, down
{
    constexpr std::uint8_t kPerInch = 1, kPerCentimetre = 2;
    if (jfif.size() < 7 || (jfif[2] != kPerInch && jfif[2] != kPerCentimetre)) return;
    const double scale = jfif[2] == kPerCentimetre ? 2.54 : 1;
    carried.dotsAcross = (jfif[3] << 8 | jfif[4]) * scale;
    carried.dotsDown = (jfif[5] << 8 | jfif[6]) * scale;
}

} // namespace

Carried carriedByJpeg(Span file)
{
    enum Marker : std::uint8_t { App0 = 0xe0, App1 = 0xe1, App2 = 0xe2, App13 = 0xed, Comment = 0xfe, Scan = 0xda };
    Carried carried;
    Profile profile;
    std::vector<std::uint8_t> blocks; // Photoshop's go on from segment to segment
    for (std::size_t at = 2; at + 4 <= file.size() && file[at] == 0xff && file[at + 1] != Scan;) {
        if (file[at + 1] == 0xff) { // a fill byte
            ++at;
            continue;
        }
        const std::size_t length = file[at + 2] << 8 | file[at + 3];
        if (length < 2 || at + 2 + length > file.size()) break;
        Span body = file.subspan(at + 4, length - 2);
        switch (file[at + 1]) {
        case App0:
            if (takeName(body, "JFIF\0"sv)) takeDensity(carried, body);
            break;
        case App1:
            if (takeName(body, "Exif\0\0"sv)) take(carried.exif, body, kMostFacts);
            if (takeName(body, "http://ns.adobe.com/xap/1.0/\0"sv)) take(carried.xmp, body, kMostFacts);
            break;
        case App2:
            if (takeName(body, "ICC_PROFILE\0"sv)) profile.add(body);
            break;
        case App13:
            if (takeName(body, "Photoshop 3.0\0"sv) && blocks.size() + body.size() <= kMostFacts)
                blocks.insert(blocks.end(), body.begin(), body.end());
            break;
        case Comment:
            while (!body.empty() && body.back() == 0) body = body.first(body.size() - 1);
            take(carried.comment, body, kMostComment);
            break;
        default:
            break;
        }
        at += 2 + length;
    }
    carried.profile = profile.whole();
    take(carried.iptc, iptcIn(blocks), kMostFacts);
    return carried;
}

} // namespace velara::decode
