#include "KeyCombination.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <string_view>

namespace Kestrune {

namespace {

struct Key
{
    std::string_view name; ///< In words.
    quint32 code;
    quint8 place;
};

/// In the order of a PC keyboard.
constexpr std::array kKeys{
    Key{"1", 18, 10},   Key{"2", 19, 11},     Key{"3", 20, 12},    Key{"4", 21, 13},    Key{"5", 23, 14},
    Key{"6", 22, 15},   Key{"7", 26, 16},     Key{"8", 28, 17},    Key{"9", 25, 18},    Key{"0", 29, 19},
    Key{"Q", 12, 24},   Key{"W", 13, 25},     Key{"E", 14, 26},    Key{"R", 15, 27},    Key{"T", 17, 28},
    Key{"Y", 16, 29},   Key{"U", 32, 30},     Key{"I", 34, 31},    Key{"O", 31, 32},    Key{"P", 35, 33},
    Key{"A", 0, 38},    Key{"S", 1, 39},      Key{"D", 2, 40},     Key{"F", 3, 41},     Key{"G", 5, 42},
    Key{"H", 4, 43},    Key{"J", 38, 44},     Key{"K", 40, 45},    Key{"L", 37, 46},    Key{"Z", 6, 52},
    Key{"X", 7, 53},    Key{"C", 8, 54},      Key{"V", 9, 55},     Key{"B", 11, 56},    Key{"N", 45, 57},
    Key{"M", 46, 58},   Key{"Space", 49, 65}, Key{"F1", 122, 67},  Key{"F2", 120, 68},  Key{"F3", 99, 69},
    Key{"F4", 118, 70}, Key{"F5", 96, 71},    Key{"F6", 97, 72},   Key{"F7", 98, 73},   Key{"F8", 100, 74},
    Key{"F9", 101, 75}, Key{"F10", 109, 76},  Key{"F11", 103, 95}, Key{"F12", 111, 96},
};

struct Modifier
{
    quint32 mask;
    const char *word;
    const char *menu;
    const char *trigger;
    Qt::KeyboardModifier qt;
};
constexpr std::array kModifiers{Modifier{4096, "Ctrl", "Control", "CTRL", Qt::ControlModifier},
                                Modifier{2048, "Alt", "Alt", "ALT", Qt::AltModifier},
                                Modifier{512, "Shift", "Shift", "SHIFT", Qt::ShiftModifier},
                                Modifier{256, "Super", "Super", "LOGO", Qt::MetaModifier}};
constexpr quint32 kShift = 512;

bool isFunctionKey(const Key &key) { return key.name.size() > 1 && key.name[0] == 'F'; }
bool isCharacter(const Key &key) { return key.name.size() == 1; }
QString nameOf(const Key &key) { return QString::fromLatin1(key.name.data(), qsizetype(key.name.size())); }

int functionNumber(const Key &key) { return nameOf(key).mid(1).toInt(); }

int qtKeyOf(const Key &key)
{
    if (isCharacter(key))
        return key.name[0]; // Letters and digits are their Latin-1 codes, letters the capitals'.
    return isFunctionKey(key) ? Qt::Key_F1 + functionNumber(key) - 1 : int(Qt::Key_Space);
}

/// The name of its key symbol.
QString symbolName(const Key &key) { return isFunctionKey(key) ? nameOf(key) : nameOf(key).toLower(); }

const Key *find(quint32 code)
{
    const auto *const key = std::ranges::find(kKeys, code, &Key::code);
    return key == kKeys.end() ? nullptr : key;
}

std::optional<KeyCombination> combine(const Key *key, quint32 modifiers)
{
    if (key == kKeys.end() || (!isFunctionKey(*key) && (modifiers & ~kShift) == 0))
        return std::nullopt;
    return KeyCombination{key->code, modifiers};
}

/// What the modifiers are called in one of their ways, in order, and then the key.
QStringList inWords(const KeyCombination &keys, const char *Modifier::*way, const QString &key)
{
    QStringList words;
    for (const Modifier &modifier : kModifiers) {
        if (keys.modifiers & modifier.mask)
            words.append(QString::fromLatin1(modifier.*way));
    }
    words.append(key);
    return words;
}

} // namespace

std::optional<KeyCombination> KeyCombination::parse(const QString &words)
{
    constexpr qsizetype longest = 80;
    QStringList parts = words.left(longest).split(QLatin1Char('+'));
    const QString name = parts.takeLast().trimmed();
    quint32 modifiers = 0;
    for (const QString &part : parts) {
        const auto *const found = std::ranges::find_if(kModifiers, [&](const Modifier &modifier) {
            return part.trimmed().compare(QLatin1String(modifier.word), Qt::CaseInsensitive) == 0;
        });
        if (found == kModifiers.end())
            return std::nullopt;
        modifiers |= found->mask;
    }
    return combine(
        std::ranges::find_if(
            kKeys, [&](const Key &key) { return nameOf(key).compare(name, Qt::CaseInsensitive) == 0; }),
        modifiers);
}

std::optional<KeyCombination> KeyCombination::ofPress(int key, int modifiers)
{
    quint32 held = 0;
    for (const Modifier &modifier : kModifiers)
        held |= modifiers & modifier.qt ? modifier.mask : 0;
    return combine(std::ranges::find(kKeys, key, qtKeyOf), held);
}

QString KeyCombination::words() const
{
    const Key *const key = find(keyCode);
    return inWords(*this, &Modifier::word, key ? nameOf(*key) : QString()).join(QLatin1Char('+'));
}

QStringList KeyCombination::menuWords() const
{
    const Key *const key = find(keyCode);
    return inWords(*this, &Modifier::menu, key ? symbolName(*key) : QString());
}

QString KeyCombination::trigger() const
{
    const Key *const key = find(keyCode);
    return inWords(*this, &Modifier::trigger, key ? symbolName(*key) : QString()).join(QLatin1Char('+'));
}

int KeyCombination::qtKey() const
{
    const Key *const key = find(keyCode);
    int number = key ? qtKeyOf(*key) : 0;
    for (const Modifier &modifier : kModifiers)
        number |= modifiers & modifier.mask ? static_cast<int>(modifier.qt) : 0;
    return number;
}

std::optional<KeyPlace> KeyCombination::placeOf(quint32 keyCode)
{
    constexpr quint32 firstFunctionKey = 0xffbe;
    const Key *const key = find(keyCode);
    if (!key)
        return std::nullopt;
    const quint32 symbol = isFunctionKey(*key) ? firstFunctionKey + quint32(functionNumber(*key)) - 1
                           : isCharacter(*key) ? quint32(symbolName(*key).at(0).unicode())
                                               : quint32(' ');
    return KeyPlace{symbol, key->place};
}

} // namespace Kestrune
