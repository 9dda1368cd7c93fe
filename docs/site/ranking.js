// What a search finds, and in which order. Without a page, so that a test can ask it, too.

/** The words of a text: of "KORVA_Zoom::fromPicture()" there are two. */
function korvaWords(text) {
    return text.toLowerCase().match(/[\w\u00c0-\uffff]+/g) || [];
}

/** How well a word fits a text: 0 for not at all, 1 inside a word, 2 at its beginning, 3 as a whole one. */
function korvaFit(word, text) {
    var letter = /[\w\u00c0-\uffff]/;
    var lower = text.toLowerCase();
    var best = 0;
    for (var at = lower.indexOf(word); at >= 0 && best < 3; at = lower.indexOf(word, at + 1)) {
        var end = at + word.length;
        // "setUndoSteps" is three words.
        var begins = !letter.test(text.charAt(at - 1)) || /[a-z][A-Z]/.test(text.substring(at - 1, at + 1));
        var ends = !letter.test(text.charAt(end)) || /[a-z][A-Z]/.test(text.substring(end - 1, end + 1));
        best = Math.max(best, begins ? (ends ? 3 : 2) : 1);
    }
    return best;
}

/**
 * The entries of the index that have all words of a query, best first. An entry is [address, page, heading, text]; a
 * word counts most in a heading, then in the page's title, then in the text.
 */
function korvaSearch(index, query) {
    var words = korvaWords(query);
    var whole = words.join(" ");
    var found = [];
    if (words.length === 0)
        return found;
    index.forEach(function (entry, order) {
        var score = 0;
        for (var i = 0; i < words.length; ++i) {
            var fit = 8 * korvaFit(words[i], entry[2]) || 4 * korvaFit(words[i], entry[1]) ||
                korvaFit(words[i], entry[3]);
            if (fit === 0)
                return;
            score += fit;
        }
        var name = korvaWords(entry[2]);
        if (name.join(" ") === whole)
            score += 100;
        else if (name[name.length - 1] === whole)
            score += 50;
        found.push({entry: entry, score: score / words.length, order: order});
    });
    found.sort(function (a, b) { return b.score - a.score || a.order - b.order; });
    return found.map(function (each) { return each.entry; });
}
