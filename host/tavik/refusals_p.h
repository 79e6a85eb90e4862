#pragma once

class QString;

namespace tavik
{

/**
 * The sentence for the operator when a request that nobody waits for came to no result: what, why,
 * and what to do. Not refused means that nobody knows whether it was carried out. Empty where the
 * request is none of the operator's business.
 */
QString failureSentence(const QString &command, const QString &reason, bool refused);

} // namespace tavik
