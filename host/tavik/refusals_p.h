#pragma once

class QString;

namespace tavik
{

/** The sentence for the operator when a request that nobody waits for came to no result: what did
 *  not happen, why, and what to do. Empty where the request is none of the operator's business. */
QString refusalSentence(const QString &command, const QString &reason);

} // namespace tavik
