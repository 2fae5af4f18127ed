#include "core/ports.h"

namespace kavro {

using namespace Qt::StringLiterals;

bool Message::offers(Answer answer) const
{
    static constexpr QStringView words[] = {u"cancel", u"ok", u"no", u"yes"};
    return kind.contains(words[static_cast<int>(answer)], Qt::CaseInsensitive);
}

Answer Message::safestAnswer() const
{
    for (const Answer answer : {Answer::Cancel, Answer::No, Answer::Ok}) {
        if (offers(answer)) {
            return answer;
        }
    }
    return Answer::Cancel;
}

} // namespace kavro
