// What a page adds to what can be read without this.
"use strict";

// The menu begins where the reader is.
{
    const menu = document.getElementById("page-menu");
    const here = menu.querySelector("[aria-current]");
    if (here && here.offsetTop > menu.clientHeight / 2)
        menu.scrollTop = here.offsetTop - menu.clientHeight / 3;
}

// The search: "/" reaches it, arrows choose, Enter goes there, Escape leaves. The index is loaded when it is needed.
{
    const most = 30;
    const root = document.documentElement.dataset.root;
    const form = document.querySelector("form");
    const input = document.getElementById("page-search");
    const list = document.getElementById("page-found");
    const count = document.getElementById("page-count");
    let chosen = -1;
    let asked = false;

    form.hidden = false;
    form.addEventListener("submit", (event) => {
        event.preventDefault();
        (list.querySelectorAll("a")[Math.max(chosen, 0)])?.click();
    });
    input.addEventListener("focus", load);
    input.addEventListener("input", show);
    input.addEventListener("keydown", steer);
    document.addEventListener("keydown", (event) => {
        const typing = event.target.closest("input, textarea, select");
        if (event.key === "/" && !typing && !event.ctrlKey && !event.metaKey && !event.altKey) {
            event.preventDefault();
            input.focus();
            input.select();
        }
    });
    document.addEventListener("click", (event) => {
        if (!form.contains(event.target) || event.target.closest("#page-found a"))
            close();
    });
    form.addEventListener("focusout", (event) => {
        if (event.relatedTarget && !form.contains(event.relatedTarget))
            close();
    });

    function load() {
        if (asked)
            return show();
        asked = true;
        const script = document.createElement("script");
        script.src = root + "/index.js";
        script.onload = show;
        document.head.append(script);
    }

    function close() {
        list.hidden = true;
        input.setAttribute("aria-expanded", "false");
        input.removeAttribute("aria-activedescendant");
        chosen = -1;
    }

    function show() {
        close();
        list.replaceChildren();
        count.textContent = "";
        if (typeof korvaIndex === "undefined" || korvaWords(input.value).length === 0)
            return;
        const found = korvaSearch(korvaIndex, input.value);
        count.textContent = found.length === 1 ? "1 place" : `${found.length} places`;
        found.slice(0, most).forEach((entry, i) => list.append(row(entry, i)));
        if (found.length === 0)
            list.append(Object.assign(document.createElement("p"), {textContent: "Nothing found."}));
        list.hidden = false;
        list.scrollTop = 0;
        input.setAttribute("aria-expanded", "true");
    }

    function row([address, page, heading, text], i) {
        const link = document.createElement("a");
        link.href = root + "/" + address;
        link.id = "page-found-" + i;
        link.tabIndex = -1;
        link.setAttribute("role", "option");
        link.setAttribute("aria-selected", "false");
        const title = document.createElement("b");
        title.textContent = heading;
        link.append(title);
        if (page !== heading && !heading.startsWith(page + "::"))
            link.append(" – " + page);
        const excerpt = document.createElement("span");
        mark(excerpt, cut(text));
        link.append(excerpt);
        return link;
    }

    /** The text around the first of the words. */
    function cut(text) {
        const places = korvaWords(input.value).map((word) => text.toLowerCase().indexOf(word)).filter((at) => at >= 0);
        const at = places.length ? Math.min(...places) : 0;
        const from = at < 60 ? 0 : text.indexOf(" ", at - 60) + 1;
        return (from ? "… " : "") + text.slice(from, from + 170) + (from + 170 < text.length ? " …" : "");
    }

    function mark(element, text) {
        const words = korvaWords(input.value);
        let rest = text;
        while (rest) {
            const lower = rest.toLowerCase();
            const next = words.map((word) => [lower.indexOf(word), word.length]).filter(([at]) => at >= 0)
                .sort((a, b) => a[0] - b[0] || b[1] - a[1])[0];
            if (!next)
                break;
            const marked = document.createElement("mark");
            marked.textContent = rest.slice(next[0], next[0] + next[1]);
            element.append(rest.slice(0, next[0]), marked);
            rest = rest.slice(next[0] + next[1]);
        }
        element.append(rest);
    }

    function steer(event) {
        const rows = list.querySelectorAll("a");
        const step = {ArrowDown: 1, ArrowUp: -1}[event.key];
        if (event.key === "Escape") {
            event.preventDefault();
            if (list.hidden)
                input.blur();
            close();
        } else if (step && rows.length > 0) {
            event.preventDefault();
            if (list.hidden)
                show();
            choose((chosen + step + (chosen < 0 && step < 0 ? 1 : 0) + rows.length) % rows.length);
        }
    }

    function choose(index) {
        const rows = list.querySelectorAll("a");
        rows.forEach((each, i) => each.setAttribute("aria-selected", String(i === index)));
        rows[index].scrollIntoView({block: "nearest"});
        input.setAttribute("aria-activedescendant", rows[index].id);
        chosen = index;
    }
}
