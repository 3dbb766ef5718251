#include "Harness.h"
#include "groups/Groups.h"

#include "resource/KrPad.h"
#include "resource/QwertyPadFactory.h"

#include <QString>

#include <hangul.h>
#include <memory>
#include <string>
#include <vector>

namespace bench {

namespace {

using PANFx::Resource::KrPad;
using PANFx::Resource::QwertyPadFactory;

// has vowels and finals of two keys, and consonants that are finals until a vowel comes
const std::u16string sentence = u"다람쥐헌쳇바퀴에타고파닭이값을찾아뛰어왔다빨간꽃까지읽어본얘기";
constexpr int sentencesInARun = 200;

struct Key
{
    int code;
    int index;
    int ascii; // on the two-set keyboard
};

std::vector<Key> keysOfSentence()
{
    const std::u16string consonants = u"ㄱㄲㄴㄷㄸㄹㅁㅂㅃㅅㅆㅇㅈㅉㅊㅋㅌㅍㅎ";
    const std::string consonantKeys = "rRseEfaqQtTdwWczxvg";
    const std::u16string vowels = u"ㅏㅐㅑㅒㅓㅔㅕㅖㅗㅘㅙㅚㅛㅜㅝㅞㅟㅠㅡㅢㅣ";
    const char* const vowelKeys[] = {"k",  "o", "i", "O",  "j",  "p",  "u", "P", "h",  "hk", "ho",
                                     "hl", "y", "n", "nj", "np", "nl", "b", "m", "ml", "l"};
    const char* const finalKeys[] = {"",   "r",  "R",  "rt", "s",  "sw", "sg", "e", "f",  "fr",
                                     "fa", "fq", "ft", "fx", "fv", "fg", "a",  "q", "qt", "t",
                                     "T",  "d",  "w",  "c",  "z",  "x",  "v",  "g"};
    std::string typed;
    for (const char16_t syllable : sentence) {
        const int number = syllable - u'가';
        typed += consonantKeys[static_cast<std::size_t>(number / 588)];
        typed += vowelKeys[number / 28 % 21];
        typed += finalKeys[number % 28];
    }
    std::vector<Key> keys;
    for (const char ascii : typed) {
        const std::size_t consonant = consonantKeys.find(ascii);
        if (consonant != std::string::npos) {
            keys.push_back({consonants[consonant], static_cast<int>(consonant), ascii});
            continue;
        }
        std::size_t vowel = 0;
        while (vowelKeys[vowel] != std::string(1, ascii))
            ++vowel;
        keys.push_back({vowels[vowel], static_cast<int>(vowel), ascii});
    }
    return keys;
}

/** libhangul, with the text around it that an editor would keep. */
class Libhangul
{
public:
    Libhangul()
        : m_context(hangul_ic_new("2"), hangul_ic_delete)
    {
    }

    void step(const Key& key) { hangul_ic_process(m_context.get(), key.ascii); }

    QString textAfter(const Key& key)
    {
        step(key);
        append(m_text, hangul_ic_get_commit_string(m_context.get()));
        QString shown = m_text;
        append(shown, hangul_ic_get_preedit_string(m_context.get()));
        return shown;
    }

    void clear()
    {
        hangul_ic_reset(m_context.get());
        m_text.clear();
    }

private:
    static void append(QString& text, const ucschar* from)
    {
        for (; *from != 0; ++from)
            text += QChar(static_cast<ushort>(*from));
    }

    std::unique_ptr<HangulInputContext, decltype(&hangul_ic_delete)> m_context;
    QString m_text;
};

/** A course that types the sentence many times; @p take does one key, @p clear starts anew. */
template <class Take, class Clear>
Course course(const std::string& name, const std::vector<Key>& keys, Take take, Clear clear)
{
    return {name, [&keys, take, clear](Watch& watch) {
                watch.start();
                for (int i = 0; i < sentencesInARun; ++i) {
                    clear();
                    for (const Key& key : keys)
                        take(key);
                }
                watch.lap();
            }};
}

void writeRows(Run& run, std::vector<Course>& courses, std::size_t keys, Goal goal)
{
    alternate(courses, run.bQuick ? Plan{8} : Plan{31});
    const double floor = courses[0].laps[0].median();
    for (const Course& course : courses) {
        const double time = course.laps[0].median();
        const double keysPerSecond = sentencesInARun * static_cast<double>(keys) / time * 1e9;
        run.table.ratio(course.name, fixed(keysPerSecond / 1e6, 1) + " M/s", time / floor,
                        &course == &courses[1] ? goal : Goal{});
    }
}

} // namespace

void measureCompose(Run& run)
{
    const std::vector<Key> keys = keysOfSentence();
    Libhangul peer;
    KrPad pad;
    QwertyPadFactory factory;
    factory.setMaxLength(static_cast<int>(sentence.size()));
    factory.changeLang("kr");
    QString peerText;
    QString padText;
    QString factoryText;
    const auto clearPeer = [&peer] { peer.clear(); };
    const auto clearPad = [&pad] { pad.clear(); };

    run.table.group("Hangul keys a second: the composing step (1.00 = libhangul's time)");
    std::vector<Course> steps;
    steps.push_back(course(
        "hangul_ic_process", keys, [&peer](const Key& key) { peer.step(key); }, clearPeer));
    steps.push_back(course(
        "KrPad::makeHangle", keys, [&pad](const Key& key) { pad.makeHangle(key.code, key.index); },
        clearPad));
    writeRows(run, steps, keys.size(), {2.0});
    const QString stepped = pad.getCompleteText();

    run.table.group("Hangul keys a second, with the text after each (1.00 = libhangul's time)");
    std::vector<Course> texts;
    texts.push_back(course(
        "libhangul and QString", keys,
        [&peer, &peerText](const Key& key) { peerText = peer.textAfter(key); }, clearPeer));
    texts.push_back(course(
        "KrPad::getCompleteText", keys,
        [&pad, &padText](const Key& key) { padText = pad.getCompleteText(key.code, key.index); },
        clearPad));
    texts.push_back(course(
        "QwertyPadFactory::getCompleteText", keys,
        [&factory, &factoryText](const Key& key) {
            factoryText = factory.getCompleteText(key.code, key.index);
        },
        [&factory] { factory.clearText(); }));
    writeRows(run, texts, keys.size(), {});

    const QString expected = QString::fromStdU16String(sentence);
    if (stepped != expected || peerText != expected || padText != expected ||
        factoryText != QString::fromLatin1(expected.toUtf8()))
        run.table.fault("a composer did not make the sentence of its keys");
}

} // namespace bench
