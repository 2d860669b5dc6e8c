// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

"use strict";

const root = document.currentScript?.dataset.root ?? document.querySelector("script[data-root]").dataset.root;
const query = document.getElementById("query");
const results = document.getElementById("results");
const hits = document.getElementById("hits");
const count = document.getElementById("count");
const most = 30;

// Where there is no room beside the text, lists would stand before it.
for (const [id, width] of [["pages", "56rem"], ["contents", "80rem"]]) {
    const list = document.getElementById(id);
    const room = matchMedia(`(min-width: ${width})`);
    const fold = () => { if (list) list.open = room.matches; };
    room.addEventListener("change", fold);
    fold();
}

// An entry is [title of the page, heading, address, text]. All words must occur; where they do counts.
function score([title, heading, , text], words) {
    let sum = 0;
    for (const word of words) {
        const inHeading = heading.toLowerCase().indexOf(word);
        if (inHeading >= 0)
            sum += inHeading === 0 ? 12 : 8;
        else if (title.toLowerCase().includes(word))
            sum += 4;
        else if (text.toLowerCase().includes(word))
            sum += 1;
        else
            return 0;
    }
    return sum;
}

function excerpt(text, words) {
    const found = text.toLowerCase().indexOf(words[0]);
    const start = found > 60 ? text.indexOf(" ", found - 60) + 1 : 0;
    const end = text.lastIndexOf(" ", start + 180);
    return text.length - start <= 180 ? text.slice(start) : `${start ? "… " : ""}${text.slice(start, end)} …`;
}

function search() {
    const words = query.value.toLowerCase().split(/\s+/).filter(Boolean);
    results.hidden = words.length === 0;
    hits.replaceChildren();
    if (results.hidden)
        return;
    const found = searchIndex
        .map(entry => [score(entry, words), entry])
        .filter(([points]) => points > 0)
        .sort(([a], [b]) => b - a);
    count.textContent = found.length > most ? `${found.length} places, the first ${most}:`
        : found.length === 1 ? "1 place" : `${found.length || "No"} places`;
    for (const [, [title, heading, address, text]] of found.slice(0, most)) {
        const link = document.createElement("a");
        link.href = root + address;
        link.textContent = heading === title ? title : `${title}: ${heading}`;
        link.addEventListener("click", () => { results.hidden = true; });
        const line = document.createElement("p");
        line.textContent = excerpt(text, words);
        const item = document.createElement("li");
        item.append(link, line);
        hits.append(item);
    }
}

query.form.addEventListener("submit", event => {
    event.preventDefault();
    hits.querySelector("a")?.focus();
});
query.addEventListener("input", search);
document.addEventListener("keydown", event => {
    if (event.key === "/" && document.activeElement !== query) {
        event.preventDefault();
        query.focus();
    } else if (event.key === "Escape" && !results.hidden) {
        query.value = "";
        search();
        query.focus();
    }
});
search();
