// A result names the routine that it leads to, and each place comes once.
document.addEventListener("DOMContentLoaded", () => {
  const results = document.getElementById("search-results");
  if (!results) return;
  const seen = new Set();
  new MutationObserver(() => {
    for (const link of results.querySelectorAll("li > a:not([data-named])")) {
      link.dataset.named = "";
      const place = link.hash.slice(1);
      const routine = /^trv/.test(place);
      const target = routine ? link.href : link.href.split("#")[0];
      if (seen.has(target)) link.parentNode.hidden = true;
      seen.add(target);
      if (routine && !link.textContent.includes(" > "))
        link.textContent += ` > ${place.replaceAll("-", "_")}`;
    }
  }).observe(results, {childList: true, subtree: true});
});
