// Keeps every file of the page, so that it opens without a network once it has been loaded. The list of
// files (files.json) is written by the build; a new build has a new list and so a new cache.
"use strict";
const listed = fetch("files.json", { cache: "no-store" }).then((answer) => answer.json());

self.addEventListener("install", (event) => {
  event.waitUntil(listed.then((list) => caches.open("ledgerwick-" + list.version)
    .then((cache) => cache.addAll(list.files))).then(() => self.skipWaiting()));
});

self.addEventListener("activate", (event) => {
  event.waitUntil(listed.then((list) => caches.keys().then((names) => Promise.all(
    names.filter((name) => name !== "ledgerwick-" + list.version).map((name) => caches.delete(name)))))
    .then(() => self.clients.claim()));
});

self.addEventListener("fetch", (event) => {
  const url = new URL(event.request.url);
  if (event.request.method !== "GET" || url.origin !== location.origin) return;
  // The edition is in the address's query; the page itself is the same file.
  event.respondWith(caches.match(event.request, { ignoreSearch: url.pathname.endsWith("/") ||
    url.pathname.endsWith("index.html") }).then((kept) => kept || fetch(event.request)));
});
